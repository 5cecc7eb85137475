#include "MenuCommand.h"

#include <windows.h>

namespace Console
{

namespace
{

std::wstring withoutDots(std::wstring text)
{
    text.erase(text.find_last_not_of(L". \x2026") + 1);
    return text;
}

std::wstring plainText(const std::wstring& text)
{
    std::wstring plain;
    for (std::size_t i = 0; i < text.size() && text[i] != L'\t'; ++i)
    {
        // "&&" is one ampersand of the text.
        if (text[i] == L'&' && ++i == text.size())
        {
            break;
        }
        plain += text[i];
    }
    return withoutDots(plain);
}

bool isNamed(const MenuItem& item, const std::wstring& name)
{
    // The console's own commands have no number of a snap-in's.
    const bool byNumber = item.snapInCommand != 0 && std::to_wstring(item.snapInCommand) == name;
    return byNumber ||
           CompareStringOrdinal(plainText(item.text).c_str(), -1, withoutDots(name).c_str(), -1, TRUE) == CSTR_EQUAL;
}

} // namespace

unsigned findMenuCommand(const std::vector<MenuItem>& items, const std::wstring& name)
{
    for (const MenuItem& item : items)
    {
        if (item.kind == MenuItem::Kind::command && item.enabled && isNamed(item, name))
        {
            return item.command;
        }
        if (const unsigned command = findMenuCommand(item.children, name))
        {
            return command;
        }
    }
    return 0;
}

} // namespace Console
