#include "frame/childProcess.h"

#include "kit/windows.h"
#include "platform/handles.h"

#include <array>
#include <stdexcept>

namespace Acceptance
{

ChildProcess run(std::wstring commandLine)
{
    constexpr DWORD patience = 30'000; // milliseconds
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    platform::KernelHandle read;
    platform::KernelHandle write;
    if (!CreatePipe(read.put(), write.put(), &inherited, 0))
    {
        throw std::runtime_error("no pipe");
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = write.get();
    startup.hStdError = write.get();
    PROCESS_INFORMATION made{};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                        &startup, &made))
    {
        throw std::runtime_error("cannot run " + narrow(commandLine));
    }
    const platform::KernelHandle process(made.hProcess);
    const platform::KernelHandle thread(made.hThread);
    // Only the child writes from here on: its end is the end of the pipe.
    write.reset();
    ChildProcess child{};
    std::array<char, 4096> buffer{};
    for (DWORD count = 0;
         ReadFile(read.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) && count > 0;)
    {
        child.output.append(buffer.data(), count);
    }
    if (WaitForSingleObject(process.get(), patience) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process.get(), &child.exitCode))
    {
        throw std::runtime_error("does not end: " + narrow(commandLine));
    }
    return child;
}

} // namespace Acceptance
