#include "brimlow/system/SmartPtr.h"
#include "PrintTo.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/Object.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using Core::SmartPtr;

namespace
{

class Node : public Core::Object
{
  public:
    explicit Node(bool& gone) : m_gone(gone) {}
    int number() const { return 5; }

  protected:
    ~Node() override { m_gone = true; }

  private:
    bool& m_gone;
};

class Leaf : public Node
{
  public:
    using Node::Node;
};

TEST(Object, BeginsWithoutReferencesAndGoesWithTheLast)
{
    bool gone = false;
    auto* node = new Node(gone);
    EXPECT_EQ(1u, node->AddRef());
    EXPECT_EQ(2u, node->AddRef());
    EXPECT_EQ(1u, node->Release());
    EXPECT_FALSE(gone);
    EXPECT_EQ(0u, node->Release());
    EXPECT_TRUE(gone);
}

TEST(Object, CountsReferencesOfSeveralThreads)
{
    bool gone = false;
    const SmartPtr<Node> node = new Node(gone);
    std::vector<std::thread> threads;
    for (int index = 0; index < 4; ++index)
    {
        threads.emplace_back(
            [&]
            {
                for (int count = 0; count < 50'000; ++count)
                {
                    const SmartPtr<Node> another = node;
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_FALSE(gone);
    EXPECT_EQ(2u, node->AddRef());
    EXPECT_EQ(1u, node->Release());
}

TEST(SmartPtr, HoldsAndReleasesItsObject)
{
    bool gone = false;
    {
        SmartPtr<Node> node = new Node(gone);
        EXPECT_TRUE(node);
        EXPECT_EQ(5, node->number());
        EXPECT_EQ(5, (*node).number());
    }
    EXPECT_TRUE(gone);
}

TEST(SmartPtr, CopiesShareTheObject)
{
    bool gone = false;
    SmartPtr<Node> first = new Node(gone);
    SmartPtr<Node> second = first;
    EXPECT_TRUE(first == second);
    first.reset();
    EXPECT_FALSE(gone);
    second = nullptr;
    EXPECT_TRUE(gone);
}

TEST(SmartPtr, MovesLeaveNothingBehind)
{
    bool gone = false;
    SmartPtr<Node> first = new Node(gone);
    SmartPtr<Node> second = std::move(first);
    EXPECT_EQ(nullptr, first.get()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_FALSE(gone);
    second.reset();
    EXPECT_TRUE(gone);
}

TEST(SmartPtr, AssigningToItselfKeepsTheObject)
{
    bool gone = false;
    SmartPtr<Node> node = new Node(gone);
    const SmartPtr<Node>& same = node;
    node = same;
    EXPECT_FALSE(gone);
    EXPECT_TRUE(node);
}

TEST(SmartPtr, ConvertsToItsBase)
{
    bool gone = false;
    const SmartPtr<Leaf> leaf = new Leaf(gone);
    const SmartPtr<Node> node = leaf;
    EXPECT_EQ(leaf.get(), node.get());
}

TEST(SmartPtr, FollowingAnEmptyOneThrowsWithItsLocation)
{
    const SmartPtr<Node> empty;
    EXPECT_FALSE(empty);
    try
    {
        static_cast<void>(empty->number());
        FAIL() << "nothing thrown";
    }
    catch (const Core::NullPointerException& exception)
    {
        EXPECT_EQ(Core::String(L"SmartPtr"), exception.getFile());
        EXPECT_EQ(118, exception.getLine());
    }
    EXPECT_THROW(static_cast<void>(*empty), Core::NullPointerException);
}

} // namespace
