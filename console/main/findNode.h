#pragma once

#include "NodePath.h"

#include "console/host/Host.h"

namespace Console
{

// Follows the path below a node, expanding every node on the way. Names are compared without regard to case. none when
// there is no such node; missing is then the path as far as it could not be followed.
NodeId findNode(const ScopeTree& tree, NodeId top, const NodePath& path, NodePath& missing);

} // namespace Console
