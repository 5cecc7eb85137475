#include "Program.h"

#include "startProcess.h"

#include <array>
#include <filesystem>
#include <stdexcept>

Program::Program(const std::wstring& arguments)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    platform::KernelHandle input;
    // The buffer holds all that the program ever prints, so it never waits for a reader.
    if (!CreatePipe(m_outputEnd.put(), input.put(), &inherited, 64 * 1024))
    {
        throw std::runtime_error("CreatePipe");
    }
    SetHandleInformation(m_outputEnd.get(), HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = input.get();
    startup.hStdError = input.get();
    m_process = startProcess(L"\"" + path() + L"\" " + arguments, startup);
}

Program::~Program()
{
    TerminateProcess(m_process.get(), 1000);
}

DWORD Program::exitCode()
{
    if (WaitForSingleObject(m_process.get(), 60'000) != WAIT_OBJECT_0)
    {
        TerminateProcess(m_process.get(), 1000);
        return 1000;
    }
    DWORD code = 0;
    GetExitCodeProcess(m_process.get(), &code);
    return code;
}

std::string Program::output()
{
    exitCode();
    std::string text;
    std::array<char, 4096> part{};
    DWORD length = 0;
    while (ReadFile(m_outputEnd.get(), part.data(), static_cast<DWORD>(part.size()), &length, nullptr) && length > 0)
    {
        text.append(part.data(), length);
    }
    return text;
}

std::wstring Program::path()
{
    std::array<wchar_t, 1024> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::filesystem::path(path.data()).replace_filename(L"TSvcStandIn.exe").wstring();
}
