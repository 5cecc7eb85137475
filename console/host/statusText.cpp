#include "statusText.h"

#include <algorithm>
#include <array>
#include <cwctype>

namespace Console
{

namespace
{

std::wstring unescape(const std::wstring& section)
{
    std::wstring text;
    for (std::size_t at = 0; at < section.size(); ++at)
    {
        at += section[at] == L'%' && at + 1 < section.size() && section[at + 1] == L'%' ? 1 : 0;
        text += section[at];
    }
    return text;
}

bool isProgress(const std::wstring& section)
{
    return section.size() >= 2 && section.size() <= 4 && section[0] == L'%' &&
           std::all_of(section.begin() + 1, section.end(), [](wchar_t each) { return std::iswdigit(each) != 0; });
}

} // namespace

View::Status parseStatusText(const std::wstring& text)
{
    std::array<std::wstring, 3> sections;
    std::size_t from = 0;
    for (std::wstring& section : sections)
    {
        const std::size_t end = from > text.size() ? text.size() : std::min(text.find(L'|', from), text.size());
        section = from > text.size() ? std::wstring() : text.substr(from, end - from);
        from = end + 1;
    }
    View::Status status;
    status.left = unescape(sections[0]);
    status.right = unescape(sections[2]);
    if (isProgress(sections[1]))
    {
        status.progress = std::min(std::stoi(sections[1].substr(1)), 100);
    }
    else
    {
        status.middle = unescape(sections[1]);
    }
    return status;
}

} // namespace Console
