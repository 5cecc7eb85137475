#include "tmgmt/settings/rules/PropertyFormat.h"

#include <algorithm>
#include <cwchar>

#include "tmgmt/settings/rules/numbers.h"

namespace TMgmt
{
namespace
{

std::wstring points(const std::wstring& text)
{
    return text + L" Pt";
}

// Text that is no number counts as 0.
std::wstring percentage(const std::wstring& text)
{
    wchar_t buffer[64];
    const int length = std::swprintf(buffer, std::size(buffer), L"%g %%", leadingReal(text).value_or(0));
    return std::wstring(buffer, static_cast<std::size_t>(length));
}

std::wstring label(const std::wstring& value, const PropertyOptions& options)
{
    const auto option =
        std::find_if(options.begin(), options.end(), [&](const PropertyOption& o) { return o.value == value; });
    return option == options.end() ? value : option->label;
}

} // namespace

ShownProperty showProperty(PropertyKind kind, const std::wstring& value, const std::wstring& defaultValue,
                           const PropertyOptions& options)
{
    switch (kind)
    {
    case PropertyKind::points:
        return {points(value), points(defaultValue)};
    case PropertyKind::percentage:
        return {percentage(value), percentage(defaultValue)};
    case PropertyKind::enumeration:
        return {label(value, options), defaultValue};
    default:
        return {value, defaultValue};
    }
}

std::wstring unitLabel(PropertyKind kind)
{
    switch (kind)
    {
    case PropertyKind::points:
        return L"Pt";
    case PropertyKind::percentage:
        return L"%";
    default:
        return {};
    }
}

} // namespace TMgmt
