#pragma once

#include "brimlow/system/SmartPtr.h"

namespace Security
{

template <class T>
using SmartPtr = Core::SmartPtr<T>;

} // namespace Security
