#pragma once

#include "brimlow/system/Exception.h"

namespace TMgmt
{

// What one of the maker's libraries says about hot folders, templates or users that it cannot read or change: in a
// message box without an owner, titled "Error Occured".
void reportRefusal(const Core::Exception& exception) noexcept;

// Does what a library may refuse. Returns false when it was refused, which has been reported then.
template <class Action>
bool accepted(Action action)
{
    try
    {
        action();
        return true;
    }
    catch (const Core::Exception& exception)
    {
        reportRefusal(exception);
        return false;
    }
}

} // namespace TMgmt
