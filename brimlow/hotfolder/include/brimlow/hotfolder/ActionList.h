#pragma once

#include "brimlow/hotfolder/Action.h"

#include <vector>

namespace HotFolders
{

// The steps after a conversion, in the order in which the server takes them.
class ActionList : public std::vector<Action>
{
  public:
    using vector::vector;

    // The descriptions of the actions, joined with "; ", or "Do nothing" for an empty list.
    Core::String getDescription() const;
};

} // namespace HotFolders
