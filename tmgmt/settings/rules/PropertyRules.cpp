#include "tmgmt/settings/rules/PropertyRules.h"

#include <algorithm>
#include <cwctype>

#include "tmgmt/settings/rules/numbers.h"

namespace TMgmt
{
namespace
{

using Checked = std::variant<std::wstring, PropertyRefusal>;

PropertyRefusal restore(const wchar_t* message)
{
    return {message, PropertyRefusal::Style::restore};
}

PropertyRefusal keep(const wchar_t* message)
{
    return {message, PropertyRefusal::Style::keep};
}

// Kept as is: only the beginning of a number has to be one, and the text is stored as typed.
Checked checkReal(const std::wstring& text)
{
    const std::optional<double> number = leadingReal(text);
    if (!number)
    {
        return restore(notAReal);
    }
    if (*number < 0 || *number > 1000)
    {
        return restore(realOutOfRange);
    }
    return text;
}

Checked checkBoolean(const std::wstring& text)
{
    std::wstring lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    if (lower != L"true" && lower != L"false")
    {
        return restore(notABoolean);
    }
    return lower;
}

Checked checkPort(const std::wstring& text)
{
    if (!std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; }))
    {
        return keep(notAPort);
    }
    const int port = leadingInteger(text);
    if (port < 1000 || port > 65535)
    {
        return keep(portOutOfRange);
    }
    return std::to_wstring(port);
}

} // namespace

Checked checkProperty(PropertyKind kind, const std::wstring& text)
{
    switch (kind)
    {
    case PropertyKind::points:
    case PropertyKind::percentage:
        return checkReal(text);
    case PropertyKind::boolean:
        return checkBoolean(text);
    case PropertyKind::integer:
        return std::to_wstring(leadingInteger(text));
    case PropertyKind::tcpPort:
        return checkPort(text);
    default:
        return text;
    }
}

} // namespace TMgmt
