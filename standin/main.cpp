#include "EndEvent.h"
#include "Options.h"
#include "Server.h"
#include "ServiceController.h"
#include "ServiceHost.h"
#include "ServiceInstaller.h"

#include <brimlow/system/Exception.h>

#include <cstdio>

namespace
{

namespace ExitCode
{
constexpr int done = 0;
constexpr int failed = 1;
constexpr int usage = 2;
constexpr int otherState = 3;
constexpr int notInstalled = 4;
} // namespace ExitCode

platform::KernelHandle consoleStop;

void print(std::FILE* stream, const Core::String& text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().c_str());
    std::fflush(stream);
}

void say(const Core::String& text)
{
    print(stdout, text);
}

std::wstring describe(const SERVICE_STATUS& status)
{
    std::wstring text = L"KV Tessaro is " + StandIn::describeState(status.dwCurrentState) + L" (check point " +
                        std::to_wstring(status.dwCheckPoint) + L", wait hint " + std::to_wstring(status.dwWaitHint) +
                        L" ms";
    if (status.dwWin32ExitCode == ERROR_SERVICE_SPECIFIC_ERROR)
    {
        text += L", service exit code " + std::to_wstring(status.dwServiceSpecificExitCode);
    }
    else if (status.dwWin32ExitCode != NO_ERROR)
    {
        text += L", exit code " + std::to_wstring(status.dwWin32ExitCode) + L": " +
                Core::describeSystemError(status.dwWin32ExitCode).str();
    }
    return text + L")";
}

int sayWhether(const SERVICE_STATUS& status, DWORD wantedState)
{
    say(describe(status));
    return status.dwCurrentState == wantedState ? ExitCode::done : ExitCode::otherState;
}

int printStatus()
{
    if (const std::optional<SERVICE_STATUS> status = StandIn::queryService())
    {
        return sayWhether(*status, SERVICE_RUNNING);
    }
    say(L"KV Tessaro is not installed");
    return ExitCode::notInstalled;
}

BOOL WINAPI stopConsole(DWORD) noexcept
{
    SetEvent(consoleStop.get());
    return TRUE;
}

void runInConsole()
{
    consoleStop.reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    SetConsoleCtrlHandler(&stopConsole, TRUE);
    const platform::KernelHandle end = StandIn::EndEvent::create();
    const StandIn::ServerSettings settings = StandIn::ServerSettings::load();
    StandIn::Server server(settings);
    say(L"Listening on " + settings.address + L", port " + std::to_wstring(settings.port) + L"; Ctrl+C stops");
    server.serve({consoleStop.get(), end.get()});
}

int execute(const StandIn::Options& options)
{
    switch (options.command)
    {
    case StandIn::Command::help:
        say(StandIn::helpText());
        break;
    case StandIn::Command::install:
        StandIn::installService(options.switches);
        say(L"KV Tessaro is installed");
        break;
    case StandIn::Command::uninstall:
        say(StandIn::uninstallService() ? L"KV Tessaro is uninstalled" : L"KV Tessaro was not installed");
        break;
    case StandIn::Command::reconfigure:
        StandIn::reconfigureService(options.switches);
        say(L"KV Tessaro is reconfigured, from its next start on");
        break;
    case StandIn::Command::start:
        return sayWhether(StandIn::startService(), SERVICE_RUNNING);
    case StandIn::Command::stop:
        return sayWhether(StandIn::stopService(), SERVICE_STOPPED);
    case StandIn::Command::end:
        StandIn::endService();
        say(L"KV Tessaro is stopped");
        break;
    case StandIn::Command::status:
        return printStatus();
    case StandIn::Command::run:
        runInConsole();
        break;
    case StandIn::Command::service:
        if (options.switches.refuseStart)
        {
            return ExitCode::failed;
        }
        StandIn::ServiceHost(options.switches).run();
        break;
    }
    return ExitCode::done;
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    try
    {
        StandIn::Options options;
        try
        {
            options = StandIn::parseOptions({arguments + 1, arguments + count});
        }
        catch (const Core::FormatException& exception)
        {
            print(stderr, exception.getMessage());
            return ExitCode::usage;
        }
        return execute(options);
    }
    catch (const Core::Exception& exception)
    {
        print(stderr, exception.getMessage());
        return ExitCode::failed;
    }
    catch (const std::exception& exception)
    {
        std::fprintf(stderr, "%s\n", exception.what());
        return ExitCode::failed;
    }
}
