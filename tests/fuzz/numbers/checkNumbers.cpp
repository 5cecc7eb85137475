// Any text as what a setting's field holds: it is refused with a sentence, or else stored as something that is accepted
// again and can be shown.

#include "checks.h"
#include "rules.h"

#include "tmgmt/hotfolders/rules/OutputFormats.h"
#include "tmgmt/settings/rules/PropertyFormat.h"
#include "tmgmt/settings/rules/PropertyRules.h"
#include "tmgmt/settings/rules/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <variant>

using TMgmt::PropertyKind;

namespace
{

constexpr PropertyKind kinds[] = {PropertyKind::points,      PropertyKind::percentage, PropertyKind::boolean,
                                  PropertyKind::enumeration, PropertyKind::integer,    PropertyKind::text,
                                  PropertyKind::tcpPort};

void checkStored(PropertyKind kind, const std::wstring& stored)
{
    const auto again = TMgmt::checkProperty(kind, stored);
    require(std::holds_alternative<std::wstring>(again) && std::get<std::wstring>(again) == stored,
            "what is stored is accepted as it is");
    const double number = TMgmt::leadingReal(stored).value_or(-1);
    const int integer = TMgmt::leadingInteger(stored);
    switch (kind)
    {
    case PropertyKind::points:
    case PropertyKind::percentage:
        require(number >= 0 && number <= 1000, "a real number is in its range");
        break;
    case PropertyKind::boolean:
        require(stored == L"true" || stored == L"false", "a truth value has two forms");
        break;
    case PropertyKind::integer:
        require(std::to_wstring(integer) == stored, "an integer is stored in its usual form");
        break;
    case PropertyKind::tcpPort:
        require(std::to_wstring(integer) == stored && integer >= 1000 && integer <= 65535, "a port is in its range");
        break;
    default:
        break;
    }
}

// As the C library reads the characters that a decimal number may have.
void compareWithLibrary(const std::wstring& text)
{
    const std::size_t begin = std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size());
    const std::size_t end = std::min(text.find_first_not_of(L"0123456789+-.eE", begin), text.size());
    const std::wstring decimal = text.substr(begin, end - begin);
    wchar_t* rest = nullptr;
    const double expected = std::wcstod(decimal.c_str(), &rest);
    const auto number = TMgmt::leadingReal(text);
    require(number.has_value() == (rest != decimal.c_str()), "a text begins with a number or does not");
    // Numbers that a double holds with less than its precision may count as zero.
    constexpr double smallest = 2.3e-308;
    require(!number || *number == expected || (std::abs(*number) < smallest && std::abs(expected) < smallest),
            "a number is what the C library reads");
}

} // namespace

void checkNumbers(std::string_view content)
{
    const Core::String text = textOf(content);
    const std::wstring wide = text.str();
    compareWithLibrary(wide);
    for (const PropertyKind kind : kinds)
    {
        const auto checked = TMgmt::checkProperty(kind, wide);
        if (const auto* const stored = std::get_if<std::wstring>(&checked))
        {
            checkStored(kind, *stored);
        }
        else
        {
            require(std::wcslen(std::get<TMgmt::PropertyRefusal>(checked).message) > 0, "a refusal has a reason");
        }
        TMgmt::showProperty(kind, wide, wide, {{L"1", L"One"}});
    }
    for (int index = -1; index <= static_cast<int>(TMgmt::outputFormats.size()); ++index)
    {
        require(TMgmt::listIndexHasPageIndex(index) || TMgmt::pageIndexToStore(index, text) == 0,
                "only pictures have a page index");
    }
}
