#include "ConsoleProgram.h"
#include "OutputStream.h"

#include "Failure.h"

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

namespace
{

// Libraries that are asked for by name come from the system folder and from folders that are added on purpose, never
// from the current folder or the path.
void hardenLibrarySearch()
{
    using SetDefaultDirectories = BOOL(WINAPI*)(DWORD);
    const auto setDefaultDirectories = reinterpret_cast<SetDefaultDirectories>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
    if (setDefaultDirectories != nullptr)
    {
        setDefaultDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS);
    }
    else
    {
        // Windows 7 without its updates: at least not from the current folder.
        SetDllDirectoryW(L"");
    }
}

std::vector<std::wstring> programArguments()
{
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments;
    for (int i = 1; i < count; ++i)
    {
        arguments.emplace_back(words[i]);
    }
    LocalFree(words);
    return arguments;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int show)
{
    hardenLibrarySearch();
    Console::OutputStream out(STD_OUTPUT_HANDLE);
    Console::OutputStream error(STD_ERROR_HANDLE);
    try
    {
        return Console::ConsoleProgram(out, error).run(programArguments(), show);
    }
    catch (...)
    {
        error.write(Console::describeFailure() + L"\n");
        return Console::ConsoleProgram::failed;
    }
}
