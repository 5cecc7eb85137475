#pragma once

#include "kit/ConsoleTest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Acceptance
{

class LogsTest : public ConsoleTest
{
  protected:
    static constexpr wchar_t logFiles[] = L"Log\\Log Files";
    static constexpr wchar_t openLog[] = L"&Open Log...";
    static constexpr wchar_t deleteAll[] = L"Delete All";

    using Names = std::vector<std::wstring>;

    // Where the server writes its logs unless it is told otherwise.
    static std::filesystem::path defaultFolder() { return ServerFiles::folder() / L"Log"; }
    // Another one, below the maker's folder too, so that it goes after the test.
    static std::filesystem::path otherFolder() { return ServerFiles::folder() / L"Other"; }

    static void write(const std::wstring& name, const std::filesystem::path& folder = defaultFolder());
    // The names of all that is in the folder, in alphabetical order.
    static Names names(const std::filesystem::path& folder = defaultFolder());

    // The setting "LogFolder"; the other settings are as if there were no file.
    static void setFolder(const std::wstring& value);

    // Opens the console and shows the log files.
    void openLogs(int views = 1);
    // Shows another node and then the log files again.
    void showAgain(std::size_t number = 0);
    // The rows' names, in their order.
    Names listed(std::size_t number = 0);

    // The robot's next step: the one message about a log that stays.
    void refusal(std::source_location where = std::source_location::current());
};

} // namespace Acceptance
