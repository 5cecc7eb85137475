#include "EndEvent.h"

#include <brimlow/system/Exception.h>

#include <sddl.h>

namespace StandIn::EndEvent
{

platform::KernelHandle create()
{
    // Without a descriptor of its own, an event of the local system account cannot be set by an administrator.
    SECURITY_ATTRIBUTES security{sizeof security, nullptr, FALSE};
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;;GA;;;SY)(A;;GA;;;BA)", SDDL_REVISION_1,
                                                              &security.lpSecurityDescriptor, nullptr))
    {
        throw Core::IOException(L"Can't describe who may end the service", GetLastError());
    }
    const platform::LocalMemory descriptor(security.lpSecurityDescriptor);

    platform::KernelHandle event(CreateEventW(&security, TRUE, FALSE, name));
    if (!event)
    {
        throw Core::IOException(Core::String(L"Can't create the event ") + name, GetLastError());
    }
    // Somebody may have held the event, still set, since the service's last run.
    ResetEvent(event.get());
    return event;
}

bool set()
{
    const platform::KernelHandle event(OpenEventW(EVENT_MODIFY_STATE, FALSE, name));
    if (!event)
    {
        if (GetLastError() == ERROR_FILE_NOT_FOUND)
        {
            return false;
        }
        throw Core::IOException(Core::String(L"Can't open the event ") + name, GetLastError());
    }
    SetEvent(event.get());
    return true;
}

} // namespace StandIn::EndEvent
