#pragma once

#include <string>

namespace TMgmt
{

// The full path of the module that this code is linked into, however long. Throws ComError.
std::wstring modulePath();

} // namespace TMgmt
