#pragma once

#include "Options.h"
#include "ServiceStatus.h"

#include <platform/handles.h>

namespace StandIn
{

// The service's process: lives in wmain, meets the service manager, serves until it is stopped. One per process.
class ServiceHost
{
  public:
    // Exit codes of the service beside those of Windows, reported with ERROR_SERVICE_SPECIFIC_ERROR.
    static constexpr DWORD settingsMalformed = 1;
    static constexpr DWORD failedUnexpectedly = 2;

    // Throws Core::IOException when its events cannot be made.
    explicit ServiceHost(const TestSwitches& switches);
    ServiceHost(const ServiceHost&) = delete;
    ServiceHost& operator=(const ServiceHost&) = delete;
    ~ServiceHost();

    // Serves; the process ends as soon as the service has stopped. Throws Core::IOException when the process was not
    // started by the service manager.
    void run();

  private:
    static void WINAPI serviceMain(DWORD count, LPWSTR* arguments) noexcept;
    static DWORD WINAPI handleControl(DWORD control, DWORD eventType, void* eventData, void* host) noexcept;

    void serve() noexcept;
    bool startUp();
    void shutDown();
    void passCheckPoints(DWORD state, unsigned count);
    bool isEnded(DWORD milliseconds) const;
    DWORD acceptedControls() const noexcept;

    TestSwitches m_switches;
    ServiceStatus m_status;
    platform::KernelHandle m_end;
    platform::KernelHandle m_stop;
};

} // namespace StandIn
