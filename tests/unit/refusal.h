#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/String.h"

// The message with which the operation is refused; "accepted" when it is not.
template <class Operation>
Core::String refusal(Operation operation)
{
    try
    {
        operation();
    }
    catch (const Core::Exception& exception)
    {
        return exception.getMessage();
    }
    return L"accepted";
}
