#include "NodePath.h"

#include <algorithm>

namespace Console
{

std::optional<NodePath> parseNodePath(const std::wstring& text)
{
    NodePath path;
    if (text.empty())
    {
        return path;
    }
    std::wstring name;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != L'\\')
        {
            name += text[i];
        }
        else if (i + 1 < text.size() && text[i + 1] == L'\\')
        {
            name += L'\\';
            ++i;
        }
        else
        {
            path.push_back(std::move(name));
            name.clear();
        }
    }
    path.push_back(std::move(name));
    if (std::any_of(path.begin(), path.end(), [](const std::wstring& part) { return part.empty(); }))
    {
        return std::nullopt;
    }
    return path;
}

std::wstring formatNodePath(const NodePath& path)
{
    std::wstring text;
    for (const std::wstring& name : path)
    {
        if (!text.empty())
        {
            text += L'\\';
        }
        for (const wchar_t c : name)
        {
            text.append(c == L'\\' ? 2 : 1, c);
        }
    }
    return text;
}

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
