#include "startProcess.h"

#include <iostream>
#include <stdexcept>

platform::KernelHandle startProcess(std::wstring commandLine, STARTUPINFOW startup)
{
    // On a busy machine Wine does not come to start one program in thousands.
    constexpr int attempts = 3;
    startup.cb = sizeof startup;
    const bool inherits = (startup.dwFlags & STARTF_USESTDHANDLES) != 0;
    PROCESS_INFORMATION started{};
    for (int attempt = 1; attempt <= attempts; ++attempt)
    {
        if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, inherits, 0, nullptr, nullptr, &startup,
                           &started))
        {
            const platform::KernelHandle thread(started.hThread);
            return platform::KernelHandle(started.hProcess);
        }
        std::cerr << "no process can be started, error " << GetLastError() << '\n';
    }
    throw std::runtime_error("no process can be started");
}
