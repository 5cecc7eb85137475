#pragma once

#include <platform/handles.h>

#include <string>

// The service, installed with the switches for one test and deleted afterwards.
class InstalledService
{
  public:
    explicit InstalledService(const std::wstring& switches = {});
    InstalledService(const InstalledService&) = delete;
    InstalledService& operator=(const InstalledService&) = delete;
    ~InstalledService();

    // Asks the service manager and gives its answer, 0 or the error; does not wait for the service.
    DWORD start();
    DWORD control(DWORD control);

    SERVICE_STATUS status() const;
    DWORD state() const { return status().dwCurrentState; }
    // False when the service does not come into the state in time.
    bool reaches(DWORD state) const;

  private:
    platform::ServiceHandle m_service;
};
