#include "tmgmt/frame/ServiceControl.h"

#include "platform/handles.h"

#include <cwchar>
#include <string>

#include "tmgmt/frame/ServiceWait.h"
#include "tmgmt/ui/WaitCursor.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{
namespace
{

constexpr wchar_t serviceName[] = L"KV Tessaro";

constexpr wchar_t cannotOpenManager[] = L"Can't open Service Control Manager";
constexpr wchar_t cannotOpenService[] = L"Can't open the service";
constexpr wchar_t cannotQueryStatus[] = L"Can't query service status";
constexpr wchar_t cannotStart[] = L"Can't start the service";
constexpr wchar_t cannotStop[] = L"Can't stop the service";

// The service as the wait looks at it.
class PendingService
{
  public:
    explicit PendingService(SC_HANDLE service) noexcept : m_service(service) {}

    std::optional<ServiceProgress> query() const noexcept
    {
        SERVICE_STATUS status{};
        if (!QueryServiceStatus(m_service, &status))
        {
            return std::nullopt;
        }
        return ServiceProgress{status.dwCurrentState, status.dwCheckPoint, status.dwWaitHint};
    }
    std::uint32_t ticks() const noexcept { return GetTickCount(); }
    void sleep(std::uint32_t milliseconds) const noexcept { Sleep(milliseconds); }

  private:
    SC_HANDLE m_service;
};

// What starting and stopping differ in.
struct Change
{
    DWORD target;
    DWORD pending;
    bool (*request)(SC_HANDLE service) noexcept;
    const wchar_t* refused;
};

bool requestStart(SC_HANDLE service) noexcept
{
    return StartServiceW(service, 0, nullptr) != FALSE;
}

bool requestStop(SC_HANDLE service) noexcept
{
    SERVICE_STATUS status{};
    return ControlService(service, SERVICE_CONTROL_STOP, &status) != FALSE;
}

constexpr Change startService{SERVICE_RUNNING, SERVICE_START_PENDING, requestStart, cannotStart};
constexpr Change stopService{SERVICE_STOPPED, SERVICE_STOP_PENDING, requestStop, cannotStop};

HRESULT bring(const Change& change)
{
    const WaitCursor cursor;
    const platform::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
    if (!manager)
    {
        return ReportServiceError(cannotOpenManager);
    }
    const platform::ServiceHandle service(OpenServiceW(manager.get(), serviceName, SERVICE_ALL_ACCESS));
    if (!service)
    {
        return ReportServiceError(cannotOpenService);
    }
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(service.get(), &status))
    {
        return ReportServiceError(cannotQueryStatus);
    }
    if (status.dwCurrentState == change.target)
    {
        return S_OK;
    }
    if (!change.request(service.get()))
    {
        return ReportServiceError(change.refused);
    }
    PendingService pending(service.get());
    waitWhilePending(pending, change.pending);
    return S_OK;
}

// Two hexadecimal forms: with the system's words for the code and, where it has none, without.
std::wstring describe(const wchar_t* context, DWORD code)
{
    platform::LocalMemory text;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM, nullptr, code,
        MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<LPWSTR>(text.put()), 0, nullptr);
    wchar_t number[11];
    std::swprintf(number, std::size(number), L"0x%08lX", code);
    std::wstring message(context);
    if (length > 0)
    {
        // Kept as is: the line break at the end of the system's text stays in the middle of the message.
        return message.append(L": ")
            .append(static_cast<const wchar_t*>(text.get()), length)
            .append(L" (")
            .append(number)
            .append(L").");
    }
    return message.append(L" (").append(number).append(L").");
}

} // namespace

HRESULT StartServerService()
{
    return bring(startService);
}

HRESULT StopServerService()
{
    return bring(stopService);
}

HRESULT RestartServerService()
{
    StopServerService();
    return StartServerService();
}

DWORD QueryServerServiceState()
{
    const platform::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
    if (!manager)
    {
        return 0;
    }
    const platform::ServiceHandle service(OpenServiceW(manager.get(), serviceName, SERVICE_ALL_ACCESS));
    if (!service)
    {
        return 0;
    }
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(service.get(), &status))
    {
        return static_cast<DWORD>(ReportServiceError(cannotQueryStatus));
    }
    return status.dwCurrentState;
}

HRESULT ReportServiceError(const wchar_t* context)
{
    const DWORD code = GetLastError();
    showMessage(nullptr, describe(context, code).c_str(), productCaption, MB_OK | MB_ICONERROR);
    return E_FAIL;
}

} // namespace TMgmt
