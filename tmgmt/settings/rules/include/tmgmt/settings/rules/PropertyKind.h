#pragma once

namespace TMgmt
{

// How a setting is shown, edited and checked. The numbers are the ones that properties and editors exchange; 0 and 5
// are not used and behave as text.
enum class PropertyKind
{
    points = 1,
    percentage = 2,
    boolean = 3,
    enumeration = 4,
    integer = 6,
    text = 7,
    tcpPort = 8
};

} // namespace TMgmt
