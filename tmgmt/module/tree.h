#pragma once

#include "tmgmt/frame/RootItem.h"

namespace TMgmt
{

// Makes the branches of a new tree. Each loads what it shows.
RootBranches makeBranches();

} // namespace TMgmt
