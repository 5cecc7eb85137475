#include "logFolder.h"

#include <windows.h>

namespace Bench
{

std::wstring logFolder(std::size_t size)
{
    return L"C:\\bench\\logs-" + std::to_wstring(size) + L"\\";
}

std::vector<std::wstring> logsIn(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileExW((folder + L"*.log").c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                           nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE)
    {
        return names;
    }
    do
    {
        names.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

} // namespace Bench
