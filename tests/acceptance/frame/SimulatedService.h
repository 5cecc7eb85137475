#pragma once

#include "kit/ImportPatch.h"

#include <windows.h>

#include <deque>
#include <vector>

namespace Acceptance
{

// The service manager and the clock as TMgmt.dll sees them, in place of the real ones: every call succeeds unless a
// test says otherwise, a status is what comes next in the script, and time passes only in Sleep. There is one at a
// time.
class SimulatedService
{
  public:
    SimulatedService();
    SimulatedService(const SimulatedService&) = delete;
    SimulatedService& operator=(const SimulatedService&) = delete;
    ~SimulatedService();

    struct Status
    {
        DWORD state;
        DWORD checkPoint = 0;
        DWORD waitHint = 0;
    };
    // What the queries answer, one after the other.
    std::deque<Status> statuses;
    // Whether the last of them stays; otherwise queries fail behind it, with queryError.
    bool lastStays = true;

    // The errors that the calls fail with; 0: they succeed.
    DWORD managerError = 0;
    DWORD serviceError = 0;
    DWORD queryError = ERROR_INVALID_HANDLE;
    DWORD startError = 0;
    DWORD controlError = 0;

    // What was done.
    std::vector<DWORD> sleeps; // milliseconds
    std::vector<bool> waitCursorInSleep;
    int queries = 0;
    int starts = 0;
    std::vector<DWORD> controls;
    DWORD managerAccess = 0;
    DWORD serviceAccess = 0;
    // In their order: 1 the manager, 2 the service.
    std::vector<int> closed;

  private:
    static SC_HANDLE WINAPI openManager(LPCWSTR machine, LPCWSTR database, DWORD access);
    static SC_HANDLE WINAPI openService(SC_HANDLE manager, LPCWSTR name, DWORD access);
    static BOOL WINAPI query(SC_HANDLE service, SERVICE_STATUS* status);
    static BOOL WINAPI start(SC_HANDLE service, DWORD count, LPCWSTR* arguments);
    static BOOL WINAPI control(SC_HANDLE service, DWORD control, SERVICE_STATUS* status);
    static BOOL WINAPI close(SC_HANDLE handle);
    static void WINAPI sleep(DWORD milliseconds);
    static DWORD WINAPI ticks();

    static SimulatedService* s_current;

    // Just before the count starts again at zero.
    DWORD m_ticks = 0xFFFFFF00;
    ImportPatch m_patches[8];
};

} // namespace Acceptance
