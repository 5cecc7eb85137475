#pragma once

#include <string>
#include <vector>

namespace TMgmt
{

// One choice of an enumeration: what the file stores and what the administrator reads.
struct PropertyOption
{
    std::wstring value;
    std::wstring label;
};

using PropertyOptions = std::vector<PropertyOption>;

} // namespace TMgmt
