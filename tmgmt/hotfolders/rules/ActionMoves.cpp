#include "tmgmt/hotfolders/rules/ActionMoves.h"

#include <algorithm>

namespace TMgmt
{
namespace
{

std::optional<int> moveBy(int distance, HotFolders::ActionList& actions, int selected) noexcept
{
    if (!hasAction(actions, selected) || !hasAction(actions, selected + distance))
    {
        return std::nullopt;
    }
    const auto action = actions.begin() + selected;
    std::iter_swap(action, action + distance);
    return selected + distance;
}

} // namespace

bool hasAction(const HotFolders::ActionList& actions, int selected) noexcept
{
    return selected >= 0 && static_cast<std::size_t>(selected) < actions.size();
}

std::optional<int> moveUp(HotFolders::ActionList& actions, int selected) noexcept
{
    return moveBy(-1, actions, selected);
}

std::optional<int> moveDown(HotFolders::ActionList& actions, int selected) noexcept
{
    return moveBy(1, actions, selected);
}

} // namespace TMgmt
