#include "ServiceController.h"

#include "EndEvent.h"

#include <brimlow/system/Exception.h>

#include <algorithm>

namespace StandIn
{

namespace
{

constexpr DWORD endTimeout = 30'000;

SERVICE_STATUS queryStatus(const platform::ServiceHandle& service)
{
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(service.get(), &status))
    {
        throw Core::IOException(L"Can't query the service's status", GetLastError());
    }
    return status;
}

SERVICE_STATUS waitWhile(DWORD pendingState, const platform::ServiceHandle& service)
{
    SERVICE_STATUS status = queryStatus(service);
    DWORD checkPoint = status.dwCheckPoint;
    ULONGLONG lastGrowth = GetTickCount64();
    // A service that has not reported a wait hint yet is given a second.
    while (status.dwCurrentState == pendingState &&
           GetTickCount64() - lastGrowth <= std::max<DWORD>(status.dwWaitHint, 1000))
    {
        Sleep(pollInterval);
        status = queryStatus(service);
        if (status.dwCheckPoint > checkPoint)
        {
            checkPoint = status.dwCheckPoint;
            lastGrowth = GetTickCount64();
        }
    }
    return status;
}

} // namespace

platform::ServiceHandle openServiceManager(DWORD access)
{
    platform::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, access));
    if (!manager)
    {
        throw Core::IOException(L"Can't open the service manager; administrator rights are needed", GetLastError());
    }
    return manager;
}

platform::ServiceHandle openServiceIfInstalled(DWORD access)
{
    const platform::ServiceHandle manager = openServiceManager(SC_MANAGER_CONNECT);
    platform::ServiceHandle service(OpenServiceW(manager.get(), serviceName, access));
    if (!service && GetLastError() != ERROR_SERVICE_DOES_NOT_EXIST)
    {
        throw Core::IOException(L"Can't open the service \"KV Tessaro\"", GetLastError());
    }
    return service;
}

platform::ServiceHandle openService(DWORD access)
{
    platform::ServiceHandle service = openServiceIfInstalled(access);
    if (!service)
    {
        throw Core::IOException(L"The service \"KV Tessaro\" is not there; use \"install\"",
                                ERROR_SERVICE_DOES_NOT_EXIST);
    }
    return service;
}

std::optional<SERVICE_STATUS> queryService()
{
    const platform::ServiceHandle service = openServiceIfInstalled(SERVICE_QUERY_STATUS);
    if (!service)
    {
        return std::nullopt;
    }
    return queryStatus(service);
}

SERVICE_STATUS startService()
{
    const platform::ServiceHandle service = openService(SERVICE_START | SERVICE_QUERY_STATUS);
    if (!StartServiceW(service.get(), 0, nullptr))
    {
        throw Core::IOException(L"Can't start the service \"KV Tessaro\"", GetLastError());
    }
    return waitWhile(SERVICE_START_PENDING, service);
}

SERVICE_STATUS stopService()
{
    const platform::ServiceHandle service = openService(SERVICE_STOP | SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    if (!ControlService(service.get(), SERVICE_CONTROL_STOP, &status))
    {
        throw Core::IOException(L"Can't stop the service \"KV Tessaro\"", GetLastError());
    }
    return waitWhile(SERVICE_STOP_PENDING, service);
}

void endService()
{
    const platform::ServiceHandle service = openService(SERVICE_QUERY_STATUS);
    const ULONGLONG begin = GetTickCount64();
    while (queryStatus(service).dwCurrentState != SERVICE_STOPPED)
    {
        // Set again in each pass: a service that is just starting may not have made its event yet.
        EndEvent::set();
        if (GetTickCount64() - begin > endTimeout)
        {
            throw Core::IOException(L"The service \"KV Tessaro\" does not end", ERROR_SERVICE_REQUEST_TIMEOUT);
        }
        Sleep(pollInterval);
    }
}

std::wstring describeState(DWORD state)
{
    switch (state)
    {
    case SERVICE_STOPPED:
        return L"stopped";
    case SERVICE_START_PENDING:
        return L"start pending";
    case SERVICE_STOP_PENDING:
        return L"stop pending";
    case SERVICE_RUNNING:
        return L"running";
    case SERVICE_CONTINUE_PENDING:
        return L"continue pending";
    case SERVICE_PAUSE_PENDING:
        return L"pause pending";
    case SERVICE_PAUSED:
        return L"paused";
    default:
        return L"in state " + std::to_wstring(state);
    }
}

} // namespace StandIn
