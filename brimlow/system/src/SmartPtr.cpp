#include "brimlow/system/SmartPtr.h"

#include "brimlow/system/Exception.h"

namespace Core
{

void throwNullPointer()
{
    NullPointerException exception;
    // The location that support staff know these log entries by; it does not follow this file's lines.
    exception.initCodeLocation(L"SmartPtr", 118);
    exception.logError();
    throw exception;
}

} // namespace Core
