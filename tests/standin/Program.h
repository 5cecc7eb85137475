#pragma once

#include <platform/handles.h>

#include <string>

// TSvcStandIn.exe, which is built beside the tests, running with the given arguments.
class Program
{
  public:
    // What it prints, errors included, goes to the output. Throws std::runtime_error when it cannot be started.
    explicit Program(const std::wstring& arguments);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    // Kills the program if it still runs.
    ~Program();

    // Waits until the program has ended and gives its exit code. Kills it and gives 1000 when it has not ended after a
    // minute.
    DWORD exitCode();
    // What it had printed when it ended.
    std::string output();

    static std::wstring path();

  private:
    platform::KernelHandle m_process;
    platform::KernelHandle m_outputEnd;
};

// Runs the program to its end and gives its exit code.
inline DWORD run(const std::wstring& arguments)
{
    return Program(arguments).exitCode();
}
