#pragma once

#include <windows.h>

#include <string>

namespace Acceptance
{

struct ChildProcess
{
    DWORD exitCode;
    // What it wrote to both of its outputs.
    std::string output;
};

// Runs a program of the system's to its end. Throws std::runtime_error when it cannot be started or does not end.
ChildProcess run(std::wstring commandLine);

} // namespace Acceptance
