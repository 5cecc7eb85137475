#include "PrintTo.h"
#include "userLists.h"

#include <gtest/gtest.h>

namespace
{

using Tessaro::UserList;

TEST(UserLists, AreMerged)
{
    const struct
    {
        const char* what;
        UserList stored;
        UserList former;
        UserList changed;
        UserList merged;
    } cases[] = {
        {"nobody else changed it: to the letter", {L"a", L"b"}, {L"a", L"b"}, {L"c", L"a", L"a"}, {L"c", L"a", L"a"}},
        {"nothing changed", {L"x", L"a"}, {L"a"}, {L"a"}, {L"x", L"a"}},
        {"added behind what the other added", {L"a", L"x"}, {L"a"}, {L"a", L"b"}, {L"a", L"x", L"b"}},
        {"both added the same", {L"a", L"b"}, {L"a"}, {L"a", L"b"}, {L"a", L"b"}},
        {"taken out of what the other added to", {L"a", L"b", L"x"}, {L"a", L"b"}, {L"b"}, {L"b", L"x"}},
        {"every entry is taken out", {L"a", L"x", L"a"}, {L"a"}, {}, {L"x"}},
        {"both took the same out", {L"b"}, {L"a", L"b"}, {L"b"}, {L"b"}},
        {"what the other took out does not come back", {L"b"}, {L"a", L"b"}, {L"a", L"b", L"c"}, {L"b", L"c"}},
        {"renamed in one place, another added", {L"a", L"b", L"x"}, {L"a", L"b"}, {L"n", L"b"}, {L"b", L"x", L"n"}},
        {"case counts", {L"a", L"x"}, {L"a"}, {L"a", L"A"}, {L"a", L"x", L"A"}},
        {"emptied by the other", {}, {L"a"}, {L"a", L"b"}, {L"b"}},
    };
    for (const auto& [what, stored, former, changed, merged] : cases)
    {
        EXPECT_EQ(merged, Tessaro::mergedUsers(stored, former, changed)) << what;
    }
}

} // namespace
