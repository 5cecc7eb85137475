#include "ServiceHost.h"

#include "EndEvent.h"
#include "Server.h"
#include "ServiceController.h"

#include <brimlow/system/Exception.h>

namespace StandIn
{

namespace
{

// The service manager calls serviceMain without a context of ours.
ServiceHost* theHost = nullptr;

} // namespace

ServiceHost::ServiceHost(const TestSwitches& switches)
    : m_switches(switches),
      m_status(switches.waitHint),
      m_end(EndEvent::create()),
      m_stop(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    if (!m_stop)
    {
        throw Core::IOException(L"Can't create the service's stop event", GetLastError());
    }
    theHost = this;
}

ServiceHost::~ServiceHost()
{
    theHost = nullptr;
}

void ServiceHost::run()
{
    std::wstring name = serviceName;
    const SERVICE_TABLE_ENTRYW services[] = {{name.data(), &serviceMain}, {nullptr, nullptr}};
    if (!StartServiceCtrlDispatcherW(services))
    {
        throw Core::IOException(L"Can't meet the service manager", GetLastError());
    }
}

void WINAPI ServiceHost::serviceMain(DWORD, LPWSTR*) noexcept
{
    theHost->serve();
    // Not left to the dispatcher, which takes its time: Wine's service manager refuses to start the service again
    // (errors 1056 and 1359) as long as the stopped process is still there.
    TerminateProcess(GetCurrentProcess(), 0);
}

DWORD WINAPI ServiceHost::handleControl(DWORD control, DWORD, void*, void* host) noexcept
{
    ServiceHost& self = *static_cast<ServiceHost*>(host);
    switch (control)
    {
    case SERVICE_CONTROL_INTERROGATE:
        return NO_ERROR;
    case SERVICE_CONTROL_STOP:
    case SERVICE_CONTROL_SHUTDOWN:
        // Reported here, so that whoever asked for the stop finds the service stopping when the request returns.
        self.m_status.pending(SERVICE_STOP_PENDING);
        SetEvent(self.m_stop.get());
        return NO_ERROR;
    case SERVICE_CONTROL_PAUSE:
        self.m_status.change(SERVICE_RUNNING, SERVICE_PAUSED);
        return NO_ERROR;
    case SERVICE_CONTROL_CONTINUE:
        self.m_status.change(SERVICE_PAUSED, SERVICE_RUNNING);
        return NO_ERROR;
    default:
        return ERROR_CALL_NOT_IMPLEMENTED;
    }
}

void ServiceHost::serve() noexcept
{
    try
    {
        const SERVICE_STATUS_HANDLE status = RegisterServiceCtrlHandlerExW(serviceName, &handleControl, this);
        if (!status)
        {
            throw Core::IOException(L"Can't register the service's control handler", GetLastError());
        }
        m_status.attach(status);
        if (startUp())
        {
            Server server(ServerSettings::load());
            m_status.running(acceptedControls());
            server.serve({m_stop.get(), m_end.get()});
        }
        shutDown();
        m_status.stopped(NO_ERROR);
    }
    catch (const Core::IOException& exception)
    {
        exception.logError();
        m_status.stopped(exception.getSystemError() != 0 ? exception.getSystemError() : ERROR_GEN_FAILURE);
    }
    catch (const Core::Exception& exception)
    {
        exception.logError();
        m_status.stopped(ERROR_SERVICE_SPECIFIC_ERROR, settingsMalformed);
    }
    catch (...)
    {
        m_status.stopped(ERROR_SERVICE_SPECIFIC_ERROR, failedUnexpectedly);
    }
}

// False when the service was ended meanwhile.
bool ServiceHost::startUp()
{
    m_status.pending(SERVICE_START_PENDING);
    passCheckPoints(SERVICE_START_PENDING, m_switches.startCheckPoints);
    return !isEnded(m_switches.startHang ? INFINITE : 0);
}

void ServiceHost::shutDown()
{
    passCheckPoints(SERVICE_STOP_PENDING, m_switches.stopCheckPoints);
    isEnded(m_switches.stopHang ? INFINITE : 0);
}

void ServiceHost::passCheckPoints(DWORD state, unsigned count)
{
    for (unsigned passed = 0; passed < count && !isEnded(m_switches.checkPointInterval); ++passed)
    {
        m_status.pending(state);
    }
}

bool ServiceHost::isEnded(DWORD milliseconds) const
{
    return WaitForSingleObject(m_end.get(), milliseconds) == WAIT_OBJECT_0;
}

DWORD ServiceHost::acceptedControls() const noexcept
{
    const DWORD stop = m_switches.refuseStop ? 0 : SERVICE_ACCEPT_STOP | SERVICE_ACCEPT_SHUTDOWN;
    return stop | (m_switches.pausable ? SERVICE_ACCEPT_PAUSE_CONTINUE : 0);
}

} // namespace StandIn
