#include "frame/SimulatedService.h"

#include <gtest/gtest.h>

namespace Acceptance
{
namespace
{

const auto managerHandle = reinterpret_cast<SC_HANDLE>(std::uintptr_t{1});
const auto serviceHandle = reinterpret_cast<SC_HANDLE>(std::uintptr_t{2});

BOOL answer(DWORD error)
{
    SetLastError(error);
    return error == 0;
}

} // namespace

SimulatedService* SimulatedService::s_current = nullptr;

SimulatedService::SimulatedService()
    : m_patches{{"OpenSCManagerW", openManager},
                {"OpenServiceW", openService},
                {"QueryServiceStatus", query},
                {"StartServiceW", start},
                {"ControlService", control},
                {"CloseServiceHandle", close},
                {"Sleep", sleep},
                {"GetTickCount", ticks}}
{
    s_current = this;
}

SimulatedService::~SimulatedService()
{
    s_current = nullptr;
}

SC_HANDLE WINAPI SimulatedService::openManager(LPCWSTR machine, LPCWSTR database, DWORD access)
{
    EXPECT_EQ(nullptr, machine);
    EXPECT_EQ(nullptr, database);
    s_current->managerAccess = access;
    return answer(s_current->managerError) ? managerHandle : nullptr;
}

SC_HANDLE WINAPI SimulatedService::openService(SC_HANDLE manager, LPCWSTR name, DWORD access)
{
    EXPECT_EQ(managerHandle, manager);
    EXPECT_STREQ(L"KV Tessaro", name);
    s_current->serviceAccess = access;
    return answer(s_current->serviceError) ? serviceHandle : nullptr;
}

BOOL WINAPI SimulatedService::query(SC_HANDLE service, SERVICE_STATUS* status)
{
    EXPECT_EQ(serviceHandle, service);
    ++s_current->queries;
    auto& script = s_current->statuses;
    if (script.empty())
    {
        return answer(s_current->queryError);
    }
    *status = {};
    status->dwCurrentState = script.front().state;
    status->dwCheckPoint = script.front().checkPoint;
    status->dwWaitHint = script.front().waitHint;
    if (script.size() > 1 || !s_current->lastStays)
    {
        script.pop_front();
    }
    return answer(NO_ERROR);
}

BOOL WINAPI SimulatedService::start(SC_HANDLE service, DWORD count, LPCWSTR* arguments)
{
    EXPECT_EQ(serviceHandle, service);
    EXPECT_EQ(0u, count);
    EXPECT_EQ(nullptr, arguments);
    ++s_current->starts;
    return answer(s_current->startError);
}

BOOL WINAPI SimulatedService::control(SC_HANDLE service, DWORD control, SERVICE_STATUS* status)
{
    EXPECT_EQ(serviceHandle, service);
    EXPECT_NE(nullptr, status);
    s_current->controls.push_back(control);
    return answer(s_current->controlError);
}

BOOL WINAPI SimulatedService::close(SC_HANDLE handle)
{
    s_current->closed.push_back(handle == managerHandle ? 1 : handle == serviceHandle ? 2 : 0);
    // What was reported must not be overwritten by this.
    SetLastError(ERROR_CRC);
    return TRUE;
}

void WINAPI SimulatedService::sleep(DWORD milliseconds)
{
    s_current->sleeps.push_back(milliseconds);
    s_current->waitCursorInSleep.push_back(GetCursor() == LoadCursorW(nullptr, IDC_WAIT));
    s_current->m_ticks += milliseconds;
}

DWORD WINAPI SimulatedService::ticks()
{
    return s_current->m_ticks;
}

} // namespace Acceptance
