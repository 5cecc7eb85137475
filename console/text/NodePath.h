#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Console
{

// Names of nodes from the top down, the static node left out.
using NodePath = std::vector<std::wstring>;

// Names separated by backslashes. A backslash that belongs to a name is written ^\, a caret before a backslash or
// another caret ^^. An empty text is the empty path. Nothing when a name is empty.
std::optional<NodePath> parseNodePath(const std::wstring& text);

// The way back: parseNodePath(formatNodePath(path)) is the path.
std::wstring formatNodePath(const NodePath& path);

} // namespace Console
