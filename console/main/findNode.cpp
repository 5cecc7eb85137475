#include "findNode.h"

#include <windows.h>

#include <algorithm>

namespace Console
{

NodeId findNode(const ScopeTree& tree, NodeId top, const NodePath& path, NodePath& missing)
{
    missing.clear();
    NodeId node = top;
    for (const std::wstring& name : path)
    {
        missing.push_back(name);
        tree.expand(node);
        const std::vector<NodeId> children = tree.children(node);
        const auto found = std::find_if(
            children.begin(), children.end(),
            [&](NodeId child)
            { return CompareStringOrdinal(tree.text(child).c_str(), -1, name.c_str(), -1, TRUE) == CSTR_EQUAL; });
        if (found == children.end())
        {
            return NodeId::none;
        }
        node = *found;
    }
    return node;
}

} // namespace Console
