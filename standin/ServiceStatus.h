#pragma once

#include <windows.h>

#include <mutex>

namespace StandIn
{

// What the service tells the service manager about itself. The service's thread and the control handler both report.
class ServiceStatus
{
  public:
    // waitHint goes with every pending state, in milliseconds.
    explicit ServiceStatus(DWORD waitHint) noexcept;

    // The handle that RegisterServiceCtrlHandlerExW gave; it is never closed.
    void attach(SERVICE_STATUS_HANDLE handle) noexcept;

    // Enters a pending state with check point 1; in it already, the check point grows by one.
    void pending(DWORD state) noexcept;
    // Enters SERVICE_RUNNING and accepts the controls (SERVICE_ACCEPT_…) until the next pending state.
    void running(DWORD accepted) noexcept;
    // Goes between SERVICE_RUNNING and SERVICE_PAUSED; does nothing when the service is not in the state "from".
    void change(DWORD from, DWORD to) noexcept;
    // The last report: the process may be ended at any time after it.
    void stopped(DWORD exitCode, DWORD serviceExitCode = 0) noexcept;

  private:
    void report(DWORD state, DWORD accepted, DWORD checkPoint, DWORD waitHint) noexcept;

    std::mutex m_mutex;
    SERVICE_STATUS_HANDLE m_handle = nullptr;
    SERVICE_STATUS m_status{};
    DWORD m_waitHint;
};

} // namespace StandIn
