#include "Attempt.h"

#include "Machine.h"
#include "childProgram.h"
#include "platform/handles.h"
#include "startProcess.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <string>

namespace
{

constexpr std::wstring_view option = L"--attempt";

// "program" --attempt, number of the save, of the fault, and of the point, and the folder.
constexpr int argumentsOfChild = 6;

std::wstring commandLine(const Save& save, Fault fault, int point)
{
    std::array<wchar_t, 1024> program{};
    GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    const auto found = std::ranges::find(allSaves(), save.name, &Save::name);
    return L"\"" + std::wstring(program.data()) + L"\" " + std::wstring(option) + L' ' +
           std::to_wstring(found - allSaves().begin()) + L' ' + std::to_wstring(static_cast<int>(fault)) + L' ' +
           std::to_wstring(point) + L" \"" + Machine::folder().wstring() + L'"';
}

} // namespace

bool isChildProgram(int argumentCount, wchar_t** arguments)
{
    return argumentCount == argumentsOfChild && arguments[1] == option;
}

void runChildProgram(wchar_t** arguments)
{
    Machine::use(arguments[5]);
    const Attempt attempt = attemptHere(allSaves().at(std::stoul(arguments[2])),
                                        static_cast<Fault>(std::stoi(arguments[3])), std::stoi(arguments[4]));
    std::cerr << attempt.reason;
    // Nothing is left to be tidied up, which would take longer than all the rest.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(attempt.ending));
    std::abort();
}

Attempt attemptElsewhere(const Save& save, Fault fault, int point)
{
    const platform::KernelHandle process = startProcess(commandLine(save, fault, point), {});
    WaitForSingleObject(process.get(), INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.get(), &status);
    if (status == killedStatus)
    {
        return {Attempt::Ending::killed, {}, true};
    }
    const bool isDone = status == static_cast<DWORD>(Attempt::Ending::done);
    return {isDone ? Attempt::Ending::done : Attempt::Ending::broken, "exit code " + std::to_string(status), false};
}
