#include "tmgmt/hotfolders/rules/ActionMoves.h"

#include <utility>

namespace TMgmt
{
namespace
{

std::optional<int> swapWith(HotFolders::ActionList& actions, int selected, int other) noexcept
{
    if (!hasAction(actions, selected) || !hasAction(actions, other))
    {
        return std::nullopt;
    }
    std::swap(actions[static_cast<std::size_t>(selected)], actions[static_cast<std::size_t>(other)]);
    return other;
}

} // namespace

bool hasAction(const HotFolders::ActionList& actions, int selected) noexcept
{
    return selected >= 0 && static_cast<std::size_t>(selected) < actions.size();
}

std::optional<int> moveUp(HotFolders::ActionList& actions, int selected) noexcept
{
    return swapWith(actions, selected, selected - 1);
}

std::optional<int> moveDown(HotFolders::ActionList& actions, int selected) noexcept
{
    return swapWith(actions, selected, selected + 1);
}

} // namespace TMgmt
