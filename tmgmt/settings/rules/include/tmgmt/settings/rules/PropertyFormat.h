#pragma once

#include <string>

#include "tmgmt/settings/rules/PropertyKind.h"
#include "tmgmt/settings/rules/PropertyOption.h"

namespace TMgmt
{

// What the columns "Value" and "Default Value" show.
struct ShownProperty
{
    std::wstring value;
    std::wstring defaultValue;
};

// Formats a raw value and its default. For an enumeration the value is shown by its option's label (as it stands when
// no option has it), the default as it is stored: the asymmetry is kept as is, administrators know the columns so.
ShownProperty showProperty(PropertyKind kind, const std::wstring& value, const std::wstring& defaultValue,
                           const PropertyOptions& options);

// The word behind the free-text editor's field; empty for kinds without a unit.
std::wstring unitLabel(PropertyKind kind);

} // namespace TMgmt
