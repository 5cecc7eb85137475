#include "InstalledService.h"

#include "Program.h"
#include "ServiceController.h"
#include "waitFor.h"

#include <stdexcept>

InstalledService::InstalledService(const std::wstring& switches)
{
    run(L"uninstall");
    if (Program install(L"install " + switches); install.exitCode() != 0)
    {
        throw std::runtime_error(install.output());
    }
    m_service = StandIn::openService(SERVICE_QUERY_STATUS | SERVICE_START | SERVICE_STOP | SERVICE_PAUSE_CONTINUE);
}

InstalledService::~InstalledService()
{
    // A service is not gone before its last handle is.
    m_service.reset();
    run(L"uninstall");
}

DWORD InstalledService::start()
{
    return StartServiceW(m_service.get(), 0, nullptr) ? NO_ERROR : GetLastError();
}

DWORD InstalledService::control(DWORD control)
{
    SERVICE_STATUS status{};
    return ControlService(m_service.get(), control, &status) ? NO_ERROR : GetLastError();
}

SERVICE_STATUS InstalledService::status() const
{
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(m_service.get(), &status))
    {
        throw std::runtime_error("QueryServiceStatus");
    }
    return status;
}

bool InstalledService::reaches(DWORD wanted) const
{
    return waitFor([&] { return state() == wanted; });
}
