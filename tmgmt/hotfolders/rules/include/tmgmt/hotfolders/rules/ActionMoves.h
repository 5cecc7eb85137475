#pragma once

#include "brimlow/hotfolder/ActionList.h"

#include <optional>

namespace TMgmt
{

// Whether an action is selected. selected is an index, or negative for none.
bool hasAction(const HotFolders::ActionList& actions, int selected) noexcept;

// Swaps the selected action with the one before or behind it and returns its new index. Nothing happens, and nothing
// is returned, without a selected action or at the end of the list.
std::optional<int> moveUp(HotFolders::ActionList& actions, int selected) noexcept;
std::optional<int> moveDown(HotFolders::ActionList& actions, int selected) noexcept;

} // namespace TMgmt
