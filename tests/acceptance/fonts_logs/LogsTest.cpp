#include "fonts_logs/LogsTest.h"

#include <brimlow/system/Configuration.h>

#include <algorithm>

namespace Acceptance
{

void LogsTest::write(const std::wstring& name, const std::filesystem::path& folder)
{
    ServerFiles::write(folder / name, "one line\r\n");
}

LogsTest::Names LogsTest::names(const std::filesystem::path& folder)
{
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
    {
        names.push_back(entry.path().filename().wstring());
    }
    std::sort(names.begin(), names.end());
    return names;
}

void LogsTest::setFolder(const std::wstring& value)
{
    const Core::String file = ServerFiles::configuration().wstring();
    Core::Configuration store;
    store.setValue(L"LogFolder", value, file);
    store.saveTo(file);
}

void LogsTest::openLogs(int views)
{
    ASSERT_NO_FATAL_FAILURE(open(views));
    for (int number = 0; number < views; ++number)
    {
        view(static_cast<std::size_t>(number)).select(logFiles);
    }
}

void LogsTest::showAgain(std::size_t number)
{
    view(number).select(L"Log");
    view(number).select(logFiles);
}

LogsTest::Names LogsTest::listed(std::size_t number)
{
    Names names;
    for (const auto& row : view(number).rows())
    {
        names.push_back(row.at(0));
    }
    return names;
}

void LogsTest::refusal(std::source_location where)
{
    robot.message({.text = L"This log can't be deleted.", .caption = L"Delete Error", .icon = MB_ICONERROR}, where);
}

} // namespace Acceptance
