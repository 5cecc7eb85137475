#pragma once

#include <platform/handles.h>

#include <optional>
#include <string>

namespace StandIn
{

inline constexpr wchar_t serviceName[] = L"KV Tessaro";
// Milliseconds between two looks at a service whose state is to change.
inline constexpr DWORD pollInterval = 50;

// The service manager's database of this machine. Throws Core::IOException.
platform::ServiceHandle openServiceManager(DWORD access);

// The installed service. Throws Core::IOException; the IfInstalled form returns nothing when there is no such service.
platform::ServiceHandle openService(DWORD access);
platform::ServiceHandle openServiceIfInstalled(DWORD access);

// The current status, nothing when the service is not installed. Throws Core::IOException.
std::optional<SERVICE_STATUS> queryService();

// Starts or stops the service and waits while it is pending, for as long as its check point grows at least once per
// wait hint. Returns the status that it was left in. Throws Core::IOException when the request is refused.
SERVICE_STATUS startService();
SERVICE_STATUS stopService();

// Ends the service through its end event, however it misbehaves, and returns when it has stopped. Throws
// Core::IOException when it is not installed, or has not stopped after half a minute.
void endService();

// "running", "start pending" …
std::wstring describeState(DWORD state);

} // namespace StandIn
