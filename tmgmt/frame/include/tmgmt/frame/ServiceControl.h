#pragma once

#include <windows.h>

namespace TMgmt
{

// The server's Windows service. Every function opens it afresh and keeps nothing; all of them block, with the wait
// cursor shown, until the service has answered or has used up its time.

// S_OK when the service runs, or was asked to and its time to do so is over; E_FAIL after a message.
HRESULT StartServerService();

// The same for stopping.
HRESULT StopServerService();

// Stops the service and starts it, whatever became of stopping it. S_OK or E_FAIL as the start gives it; both report
// their own failures.
HRESULT RestartServerService();

// The service's SERVICE_ state; 0, with no message, when the service manager or the service cannot be opened; E_FAIL
// as a number, after a message, when the state cannot be read.
DWORD QueryServerServiceState();

// Tells the administrator what could not be done and why Windows refused (the thread's last error). Always E_FAIL.
HRESULT ReportServiceError(const wchar_t* context);

} // namespace TMgmt
