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

// Formats a raw value and its default. A value that no option has is shown as it stands. Administrators know the
// columns so. Kept as is: the value of an enumeration is shown by the label of its option, its default as it is
// stored.
ShownProperty showProperty(PropertyKind kind, const std::wstring& value, const std::wstring& defaultValue,
                           const PropertyOptions& options);

// The word behind the free-text editor's field; empty for kinds without a unit.
std::wstring unitLabel(PropertyKind kind);

} // namespace TMgmt
