#include "Fixtures.h"
#include "ListBench.h"
#include "Report.h"
#include "floorLists.h"
#include "logFolder.h"
#include "memoryUse.h"
#include "subjects/subjects.h"

#include <stdexcept>

namespace Bench
{
namespace
{

constexpr std::size_t smallestForMemory = 10000;

void deleteFile(const std::wstring& path)
{
    if (!DeleteFileW(path.c_str()))
    {
        throw std::runtime_error("a log file cannot be deleted");
    }
}

// What a list of that many rows takes while it is shown.
std::size_t memoryOf(Stage& stage, List& list, std::size_t size)
{
    stage.leave();
    const std::size_t before = memoryUse();
    Fixtures::make("logs", size);
    list.show();
    list.expectRows(size);
    const std::size_t after = memoryUse();
    Fixtures::make("logs", 0);
    list.show();
    stage.leave();
    return after - before;
}

} // namespace

void logFiles(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    Fixtures::make("logs", 0);
    const std::wstring folder = logFolder(size);
    ListBench bench("Log Files", logFileList(size), {L"Log", L"Log Files"}, size, size, patience,
                    [size] { Fixtures::make("logs", size); });
    if (size >= smallestForMemory)
    {
        bench.plugIn().show();
        bench.lowest().show();
        reportBytes("Log Files: memory", size, memoryOf(bench.stage(), bench.plugIn(), size),
                    memoryOf(bench.stage(), bench.lowest(), size));
    }

    Fixtures::make("logs", size);
    bench.show();
    bench.leave();
    bench.readTexts();

    const std::wstring middle = folder + logsIn(folder)[size / 2];
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least = [&] { deleteFile(middle); },
                  .rows = size - 1});
    bench.change({.what = "delete all",
                  .command = [](List& list) { list.runCommand(L"Delete All"); },
                  .least =
                      [&]
                  {
                      for (const std::wstring& name : logsIn(folder))
                      {
                          deleteFile(folder + name);
                      }
                  },
                  .rows = 0});
}

} // namespace Bench
