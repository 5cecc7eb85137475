#pragma once

#include <windows.h>

namespace Console
{

// Names one item of the console's tree. The value is the handle (HSCOPEITEM) that the snap-in knows the item by. It is
// never an address and never used again for another item, so an old one is recognised and refused.
enum class NodeId : LONG_PTR
{
    none = 0
};

} // namespace Console
