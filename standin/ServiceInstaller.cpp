#include "ServiceInstaller.h"

#include "ServiceController.h"

#include <brimlow/system/Exception.h>

namespace StandIn
{

namespace
{

constexpr DWORD deleteTimeout = 30'000;

std::wstring programPath()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;)
    {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
        {
            throw Core::IOException(L"Can't find out where this program is", GetLastError());
        }
        if (length < path.size())
        {
            path.resize(length);
            return path;
        }
        path.resize(2 * path.size());
    }
}

std::wstring commandLine(const TestSwitches& switches)
{
    // Quoted, or Windows would try each part of a path with blanks as a program.
    std::wstring line = L"\"" + programPath() + L"\" service";
    const std::wstring arguments = formatSwitches(switches);
    return arguments.empty() ? line : line + L" " + arguments;
}

} // namespace

void installService(const TestSwitches& switches)
{
    const platform::ServiceHandle manager = openServiceManager(SC_MANAGER_CONNECT | SC_MANAGER_CREATE_SERVICE);
    const platform::ServiceHandle service(CreateServiceW(
        manager.get(), serviceName, serviceName, SERVICE_QUERY_STATUS, SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START,
        SERVICE_ERROR_NORMAL, commandLine(switches).c_str(), nullptr, nullptr, nullptr, nullptr, nullptr));
    if (!service)
    {
        throw Core::IOException(L"Can't install the service \"KV Tessaro\"", GetLastError());
    }
}

void reconfigureService(const TestSwitches& switches)
{
    const platform::ServiceHandle service = openService(SERVICE_CHANGE_CONFIG);
    if (!ChangeServiceConfigW(service.get(), SERVICE_NO_CHANGE, SERVICE_NO_CHANGE, SERVICE_NO_CHANGE,
                              commandLine(switches).c_str(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr))
    {
        throw Core::IOException(L"Can't change the service \"KV Tessaro\"", GetLastError());
    }
}

bool uninstallService()
{
    {
        const platform::ServiceHandle service = openServiceIfInstalled(DELETE);
        if (!service)
        {
            return false;
        }
        endService();
        if (!DeleteService(service.get()) && GetLastError() != ERROR_SERVICE_MARKED_FOR_DELETE)
        {
            throw Core::IOException(L"Can't delete the service \"KV Tessaro\"", GetLastError());
        }
    }
    const ULONGLONG begin = GetTickCount64();
    while (openServiceIfInstalled(SERVICE_QUERY_STATUS))
    {
        if (GetTickCount64() - begin > deleteTimeout)
        {
            throw Core::IOException(L"The service \"KV Tessaro\" is deleted, but some program keeps it open",
                                    ERROR_SERVICE_MARKED_FOR_DELETE);
        }
        Sleep(pollInterval);
    }
    return true;
}

} // namespace StandIn
