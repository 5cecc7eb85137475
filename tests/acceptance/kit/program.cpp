#include "kit/program.h"

#include "console/host/Registration.h"
#include "kit/ConsoleTest.h"
#include "kit/Watchdog.h"
#include "kit/windows.h"

#include <gtest/gtest.h>

#include <ole2.h>

#include <cstdio>
#include <filesystem>

namespace Acceptance
{
namespace
{

constexpr int notRegistered = 2;
constexpr int crashed = 87;

// Without it a debugger would come up and keep the run for ever.
LONG WINAPI endCrashed(EXCEPTION_POINTERS* fault) noexcept
{
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(record.ExceptionAddress), &module);
    std::printf("CRASH: exception 0x%08lX at %p, in the module at %p\n", record.ExceptionCode, record.ExceptionAddress,
                static_cast<void*>(module));
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), crashed);
    return EXCEPTION_EXECUTE_HANDLER;
}

// Tests of another build's library would prove nothing about this one.
bool isRegistered()
{
    const std::filesystem::path expected = ServerFiles::programFolder() / L"TMgmt.dll";
    const Console::ServerState server = Console::inspectServer(snapInClass);
    if (!server.problem.empty())
    {
        std::printf("%s\n", narrow(server.problem).c_str());
    }
    std::error_code error;
    if (server.problem.empty() && std::filesystem::equivalent(server.library, expected, error))
    {
        return true;
    }
    std::printf("The registered plug-in is \"%s\", not the one beside this program. Run: regsvr32 /s \"%s\"\n",
                narrow(server.library).c_str(), narrow(expected.wstring()).c_str());
    return false;
}

} // namespace

int runTests(int argumentCount, wchar_t** arguments, std::chrono::seconds longestTest)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    SetUnhandledExceptionFilter(endCrashed);
    OleInitialize(nullptr);
    int result = notRegistered;
    if (isRegistered())
    {
        // Lives until the process ends: googletest owns its listeners.
        testing::UnitTest::GetInstance()->listeners().Append(new Watchdog(longestTest));
        result = RUN_ALL_TESTS();
    }
    OleUninitialize();
    return result;
}

} // namespace Acceptance
