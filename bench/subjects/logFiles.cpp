#include "Fixtures.h"
#include "List.h"
#include "Report.h"
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

void logFiles(std::size_t size, std::size_t repetitions)
{
    Fixtures::make("logs", 0);
    const std::wstring folder = logFolder(size);
    FloorNode floor{
        .name = L"Floor",
        .children = {
            {.name = L"Log Files", .columns = {L"Log name"}, .read = [&] { return logsIn(folder); }, .change = {}}}};
    std::function<void()>& change = floor.children.front().change;
    Stage stage(floor);
    List plugIn(stage, stage.plugIn(), {L"Log", L"Log Files"});
    List lowest(stage, stage.floor(), {L"Log Files"});
    if (size >= smallestForMemory)
    {
        plugIn.show();
        lowest.show();
        reportBytes("Log Files: memory", size, memoryOf(stage, plugIn, size), memoryOf(stage, lowest, size));
    }

    Fixtures::make("logs", size);
    const auto leave = [&] { stage.leave(); };
    const auto show = [](List& list) { return [&list] { list.show(); }; };
    const auto expect = [&](std::size_t rows)
    {
        return [&, rows]
        {
            plugIn.expectRows(rows);
            Fixtures::make("logs", size);
        };
    };
    compare("Log Files: show", size, repetitions, {.act = show(plugIn), .before = leave, .after = expect(size)},
            {.act = show(lowest), .before = leave, .after = expect(size)});
    compare("Log Files: leave", size, repetitions, {.act = leave, .before = show(plugIn)},
            {.act = leave, .before = show(lowest)});
    compare("Log Files: read every text", size, repetitions,
            {.act = [&] { plugIn.readTexts(); }, .before = show(plugIn), .after = expect(size)},
            {.act = [&] { lowest.readTexts(); }, .before = show(lowest), .after = expect(size)});

    const std::wstring middle = folder + logsIn(folder)[size / 2];
    change = [&] { deleteFile(middle); };
    compare("Log Files: delete one", size, repetitions,
            {.act = [&] { plugIn.deleteSelected(); },
             .before =
                 [&]
             {
                 plugIn.show();
                 plugIn.select(plugIn.middle());
             },
             .after = expect(size - 1)},
            {.act = [&] { lowest.refresh(); }, .before = show(lowest), .after = expect(size - 1)});

    change = [&]
    {
        for (const std::wstring& name : logsIn(folder))
        {
            deleteFile(folder + name);
        }
    };
    compare("Log Files: delete all", size, repetitions,
            {.act = [&] { plugIn.runCommand(L"Delete All"); }, .before = show(plugIn), .after = expect(0)},
            {.act = [&] { lowest.refresh(); }, .before = show(lowest), .after = expect(0)});
}

} // namespace Bench
