#include "ServiceStatus.h"

namespace StandIn
{

ServiceStatus::ServiceStatus(DWORD waitHint) noexcept : m_waitHint(waitHint)
{
    m_status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    m_status.dwCurrentState = SERVICE_STOPPED;
}

void ServiceStatus::attach(SERVICE_STATUS_HANDLE handle) noexcept
{
    const std::scoped_lock lock(m_mutex);
    m_handle = handle;
}

void ServiceStatus::pending(DWORD state) noexcept
{
    const std::scoped_lock lock(m_mutex);
    report(state, 0, m_status.dwCurrentState == state ? m_status.dwCheckPoint + 1 : 1, m_waitHint);
}

void ServiceStatus::running(DWORD accepted) noexcept
{
    const std::scoped_lock lock(m_mutex);
    report(SERVICE_RUNNING, accepted, 0, 0);
}

void ServiceStatus::change(DWORD from, DWORD to) noexcept
{
    const std::scoped_lock lock(m_mutex);
    if (m_status.dwCurrentState == from)
    {
        report(to, m_status.dwControlsAccepted, 0, 0);
    }
}

void ServiceStatus::stopped(DWORD exitCode, DWORD serviceExitCode) noexcept
{
    const std::scoped_lock lock(m_mutex);
    m_status.dwWin32ExitCode = exitCode;
    m_status.dwServiceSpecificExitCode = serviceExitCode;
    report(SERVICE_STOPPED, 0, 0, 0);
}

void ServiceStatus::report(DWORD state, DWORD accepted, DWORD checkPoint, DWORD waitHint) noexcept
{
    m_status.dwCurrentState = state;
    m_status.dwControlsAccepted = accepted;
    m_status.dwCheckPoint = checkPoint;
    m_status.dwWaitHint = waitHint;
    SetServiceStatus(m_handle, &m_status);
}

} // namespace StandIn
