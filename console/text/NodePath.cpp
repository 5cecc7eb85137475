#include "NodePath.h"

#include <algorithm>

namespace Console
{

namespace
{

constexpr wchar_t separator = L'\\';
constexpr wchar_t escape = L'^';

bool needsEscape(wchar_t c)
{
    return c == separator || c == escape;
}

} // namespace

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
        const bool escapes = text[i] == escape && i + 1 < text.size() && needsEscape(text[i + 1]);
        if (escapes)
        {
            name += text[++i];
        }
        else if (text[i] == separator)
        {
            path.push_back(std::move(name));
            name.clear();
        }
        else
        {
            name += text[i];
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
            text += separator;
        }
        for (const wchar_t c : name)
        {
            if (needsEscape(c))
            {
                text += escape;
            }
            text += c;
        }
    }
    return text;
}

} // namespace Console
