#include "tmgmt/hotfolders/rules/ActionMoves.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

using namespace TMgmt;
using HotFolders::Action;
using HotFolders::ActionList;

// One action for each letter, told apart by its folder.
ActionList listOf(const std::wstring& letters)
{
    ActionList actions;
    for (const wchar_t letter : letters)
    {
        Action action;
        action.setDestinationPath(std::wstring(1, letter));
        actions.push_back(action);
    }
    return actions;
}

std::wstring lettersOf(const ActionList& actions)
{
    std::wstring letters;
    for (const Action& action : actions)
    {
        letters += action.getDestinationPath().str();
    }
    return letters;
}

struct Move
{
    const wchar_t* before;
    int selected;
    const wchar_t* after;
    std::optional<int> result;
};

constexpr int none = -1;
constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

TEST(ActionMoves, moveUpSwapsWithTheActionBefore)
{
    const Move moves[] = {
        {L"abc", 1, L"bac", 0},
        {L"abc", 2, L"acb", 1},
        {L"ab", 1, L"ba", 0},
    };
    for (const Move& move : moves)
    {
        ActionList actions = listOf(move.before);
        EXPECT_EQ(moveUp(actions, move.selected), move.result);
        EXPECT_EQ(lettersOf(actions), move.after);
    }
}

TEST(ActionMoves, moveDownSwapsWithTheActionBehind)
{
    const Move moves[] = {
        {L"abc", 0, L"bac", 1},
        {L"abc", 1, L"acb", 2},
        {L"ab", 0, L"ba", 1},
    };
    for (const Move& move : moves)
    {
        ActionList actions = listOf(move.before);
        EXPECT_EQ(moveDown(actions, move.selected), move.result);
        EXPECT_EQ(lettersOf(actions), move.after);
    }
}

TEST(ActionMoves, moveUpDoesNothingForTheFirstAndForWhatIsNoAction)
{
    for (const int selected : {0, none, 3, 4, largest, smallest})
    {
        ActionList actions = listOf(L"abc");
        EXPECT_EQ(moveUp(actions, selected), std::nullopt) << selected;
        EXPECT_EQ(lettersOf(actions), L"abc") << selected;
    }
}

TEST(ActionMoves, moveDownDoesNothingForTheLastAndForWhatIsNoAction)
{
    for (const int selected : {2, none, 3, 4, largest, smallest})
    {
        ActionList actions = listOf(L"abc");
        EXPECT_EQ(moveDown(actions, selected), std::nullopt) << selected;
        EXPECT_EQ(lettersOf(actions), L"abc") << selected;
    }
}

TEST(ActionMoves, anEmptyListHasNothingToMove)
{
    ActionList actions;
    EXPECT_EQ(moveUp(actions, 0), std::nullopt);
    EXPECT_EQ(moveDown(actions, 0), std::nullopt);
}

TEST(ActionMoves, anActionIsSelectedFromTheFirstToTheLast)
{
    const ActionList actions = listOf(L"ab");
    EXPECT_TRUE(hasAction(actions, 0));
    EXPECT_TRUE(hasAction(actions, 1));
    for (const int selected : {none, 2, largest, smallest})
    {
        EXPECT_FALSE(hasAction(actions, selected)) << selected;
    }
}

} // namespace
