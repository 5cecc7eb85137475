#include "brimlow/system/SharedIdentity.h"

#include <gtest/gtest.h>

namespace
{

using Core::SharedIdentity;

TEST(SharedIdentity, IsEqualForTheSameObjectOnly)
{
    const auto object = std::make_shared<int>(1);
    const auto same = object;
    const auto other = std::make_shared<int>(1);
    EXPECT_TRUE(SharedIdentity(object) == SharedIdentity(same));
    EXPECT_FALSE(SharedIdentity(object) == SharedIdentity(other));
}

TEST(SharedIdentity, OfNoneIsEqualToNothing)
{
    EXPECT_FALSE(SharedIdentity() == SharedIdentity());
    EXPECT_FALSE(SharedIdentity() == SharedIdentity(std::make_shared<int>(1)));
}

TEST(SharedIdentity, KeepsNothingAliveAndEndsWithItsObject)
{
    auto object = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = object;
    const SharedIdentity identity(object);
    const SharedIdentity copy = identity;
    EXPECT_TRUE(identity == copy);
    object.reset();
    EXPECT_TRUE(watch.expired());
    EXPECT_FALSE(identity == copy);
}

} // namespace
