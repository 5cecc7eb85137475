// Any text as what the console is given: the path of a node, the places and widths that it kept, and what it prints in
// JSON.

#include "NodePath.h"
#include "checks.h"
#include "jsonString.h"
#include "numberLine.h"
#include "rules.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace
{

void checkPath(const std::wstring& text)
{
    const auto path = Console::parseNodePath(text);
    if (path)
    {
        require(std::ranges::none_of(*path, &std::wstring::empty), "no name is empty");
        require(Console::parseNodePath(Console::formatNodePath(*path)) == path, "a path comes back from its text");
    }
}

void checkNumbersIn(const std::wstring& text)
{
    constexpr int largest = 1000;
    const auto numbers = Console::parseNumbers(text, largest);
    if (numbers)
    {
        require(std::ranges::all_of(*numbers, [](int number) { return number >= -largest && number <= largest; }),
                "numbers are in their range");
        require(Console::parseNumbers(Console::formatNumbers(*numbers), largest) == numbers,
                "numbers come back from their text");
    }
}

// What a string of JSON stands for.
std::wstring decoded(const std::wstring& json)
{
    std::wstring text;
    for (std::size_t at = 1; at + 1 < json.size(); ++at)
    {
        require(json[at] != L'"' && json[at] >= L' ', "what ends a string is written as an escape");
        if (json[at] != L'\\')
        {
            text += json[at];
            continue;
        }
        switch (json[++at])
        {
        case L'n':
            text += L'\n';
            break;
        case L'r':
            text += L'\r';
            break;
        case L't':
            text += L'\t';
            break;
        case L'u':
            text += static_cast<wchar_t>(std::stoul(json.substr(at + 1, 4), nullptr, 16));
            at += 4;
            break;
        default:
            text += json[at];
        }
    }
    return text;
}

} // namespace

void checkConsole(std::string_view content)
{
    const std::wstring text = textOf(content).str();
    checkPath(text);
    checkNumbersIn(text);
    require(decoded(Console::jsonString(text)) == text, "a string of JSON stands for the text");
}
