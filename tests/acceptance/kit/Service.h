#pragma once

#include <windows.h>

#include <string>

// The service "KV Tessaro" of this machine, played by the stand-in.
namespace Acceptance::Service
{

inline constexpr wchar_t name[] = L"KV Tessaro";

// Creates it, stopped. switches: the stand-in's own, as L"--stop-hang --wait-hint 300".
void install(const std::wstring& switches = {});
// Replaces the switches, for its next start.
void reconfigure(const std::wstring& switches);
// Ends it, however it misbehaves, deletes it and waits until it is gone. Nothing happens when it is not installed.
void remove();

// SERVICE_RUNNING and so on; 0 when it is not installed.
DWORD state();
// Changes whenever the service was started anew; 0 while it does not run.
DWORD processId();

// Asks for the start and waits for SERVICE_RUNNING.
void start();
// Installs it and starts it on such a port as useFreePort finds.
void startOnFreePort();
// Sends a control (SERVICE_CONTROL_STOP, SERVICE_CONTROL_PAUSE, …) without waiting.
void control(DWORD control);
// Waits until the service is in that state. Fails the test after ten seconds.
void waitFor(DWORD state);
// Ends a service that hangs or refuses to stop, and waits until it has stopped.
void end();

// Whether somebody answers on that port of 127.0.0.1, with the stand-in's greeting.
bool answersOn(unsigned short port);
// A port that nobody uses now.
unsigned short freePort();
// Replaces the server's configuration: the service shall listen on such a port of this machine.
void useFreePort();

} // namespace Acceptance::Service
