#include "kit/windows.h"
#include "subjects/subjects.h"

#include <ole2.h>

#include <cstdio>
#include <exception>
#include <map>
#include <string>

namespace
{

const std::map<std::wstring, Bench::Subject> subjects{
    {L"access-list", Bench::accessList},
    {L"applications", Bench::applications},
    {L"certificates", Bench::certificates},
    {L"everything", Bench::everything},
    {L"hot-folders", Bench::hotFolders},
    {L"loading", Bench::loading},
    {L"loading-applications", Bench::loadingApplications},
    {L"loading-log-files", Bench::loadingLogFiles},
    {L"loading-private-fonts", Bench::loadingPrivateFonts},
    {L"log-files", Bench::logFiles},
    {L"private-fonts", Bench::privateFonts},
    {L"resource-files", Bench::resourceFiles},
    {L"resource-folders", Bench::resourceFolders},
    {L"settings", Bench::settings},
    {L"templates", Bench::templates},
    {L"users", Bench::users},
    {L"users-of-applications", Bench::usersOfApplications},
};

int measure(const std::wstring& name, std::size_t size, std::chrono::milliseconds patience)
{
    const auto subject = subjects.find(name);
    if (subject == subjects.end())
    {
        std::fprintf(stderr, "There is no subject %s.\n", Acceptance::narrow(name).c_str());
        return 1;
    }
    try
    {
        subject->second(size, patience);
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s, %zu: %s\n", Acceptance::narrow(name).c_str(), size, failure.what());
        return 1;
    }
    return 0;
}

} // namespace

// Bench.exe SUBJECT SIZE MILLISECONDS: measures and writes figures for measure.py, which starts it.
extern "C" int wmain(int argumentCount, wchar_t** arguments)
{
    if (argumentCount != 4)
    {
        std::fprintf(stderr, "Run ./bench.sh.\n");
        return 1;
    }
    OleInitialize(nullptr);
    const int result =
        measure(arguments[1], std::stoul(arguments[2]), std::chrono::milliseconds(std::stoul(arguments[3])));
    OleUninitialize();
    return result;
}
