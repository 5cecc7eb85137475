#include "DialogAnswer.h"
#include "Fixtures.h"
#include "List.h"
#include "Report.h"
#include "floor/floorDialog.h"
#include "hotFolderFixture.h"
#include "subjects/subjects.h"

#include <brimlow/hotfolder/HotFolderCollection.h>

#include <optional>

namespace Bench
{
namespace
{

constexpr int inputEdit = 232;
constexpr int outputEdit = 237;

std::vector<std::wstring> hotFolderCells()
{
    const HotFolders::HotFolderCollection hotFolders;
    std::vector<std::wstring> cells;
    cells.reserve(4 * static_cast<std::size_t>(hotFolders.getCount()));
    for (int index = 0; index < hotFolders.getCount(); ++index)
    {
        const HotFolders::HotFolder& hotFolder = hotFolders.getAt(index);
        cells.push_back(hotFolder.getDisplayName().str());
        cells.push_back(hotFolder.getFolder().str());
        cells.push_back(hotFolder.getFileMatchPattern().str());
        cells.emplace_back(hotFolder.isMonitoringEnabled() ? L"Yes" : L"No");
    }
    return cells;
}

} // namespace

void hotFolders(std::size_t size, std::size_t repetitions)
{
    makeHotFolders(size);
    FloorNode floor{.name = L"Floor",
                    .children = {{.name = L"Hot Folders",
                                  .columns = {L"Folder Name", L"Full Path", L"Pattern", L"Enabled"},
                                  .read = hotFolderCells,
                                  .change = {}}}};
    FloorNode& node = floor.children.front();
    Stage stage(floor);
    List plugIn(stage, stage.plugIn(), {L"Hot Folders"});
    List lowest(stage, stage.floor(), {L"Hot Folders"});

    const auto leave = [&] { stage.leave(); };
    const auto show = [](List& list) { return [&list] { list.show(); }; };
    const auto refresh = [](List& list) { return [&list] { list.refresh(); }; };
    const auto whole = [&] { plugIn.expectRows(size); };
    compare("Hot Folders: show", size, repetitions, {.act = show(plugIn), .before = leave, .after = whole},
            {.act = show(lowest), .before = leave, .after = whole});
    compare("Hot Folders: leave", size, repetitions, {.act = leave, .before = show(plugIn)},
            {.act = leave, .before = show(lowest)});
    compare("Hot Folders: read every text", size, repetitions,
            {.act = [&] { plugIn.readTexts(); }, .before = show(plugIn), .after = whole},
            {.act = [&] { lowest.readTexts(); }, .before = show(lowest), .after = whole});
    compare("Hot Folders: refresh, nothing changed", size, repetitions,
            {.act = refresh(plugIn), .before = show(plugIn), .after = whole},
            {.act = refresh(lowest), .before = show(lowest), .after = whole});

    const auto showChanged = [&](List& list)
    {
        return [&]
        {
            list.show();
            Fixtures::make("hot-folders", size); // written anew, as by another program
        };
    };
    compare("Hot Folders: refresh, changed elsewhere", size, repetitions,
            {.act = refresh(plugIn), .before = showChanged(plugIn), .after = whole},
            {.act = refresh(lowest), .before = showChanged(lowest), .after = whole});

    std::optional<DialogAnswer> answer;
    const auto showAndAwait = [&](List& list, const std::map<int, std::wstring>& texts)
    {
        return [&, texts]
        {
            list.show();
            list.select(list.middle());
            stage.frame().activate();
            answer.reset();
            answer.emplace(texts);
        };
    };
    const auto other = [&](std::size_t rows)
    {
        return [&, rows]
        {
            plugIn.expectRows(rows);
            Fixtures::make("hot-folders", size);
        };
    };

    const std::map<int, std::wstring> added{{inputEdit, L"C:\\bench\\hot"}, {outputEdit, L"C:\\bench\\out"}};
    node.change = [&]
    {
        showFloorDialog();
        HotFolders::HotFolder hotFolder;
        hotFolder.setFolder(added.at(inputEdit));
        hotFolder.setOutputFolder(added.at(outputEdit));
        HotFolders::HotFolderCollection().addNewFolder(hotFolder);
    };
    compare("Hot Folders: add one", size, repetitions,
            {.act = [&] { plugIn.runCommand(L"&Add Hot Folder..."); },
             .before = showAndAwait(plugIn, added),
             .after = other(size + 1)},
            {.act = refresh(lowest), .before = showAndAwait(lowest, added), .after = other(size + 1)});

    const auto middle = [&](const HotFolders::HotFolderCollection& all)
    { return all.getAt(static_cast<int>(size / 2)); };
    node.listsAnew = false;
    node.change = [&]
    {
        showFloorDialog();
        HotFolders::HotFolderCollection all;
        all.updateFolder(middle(all));
    };
    compare("Hot Folders: edit one", size, repetitions,
            {.act = [&] { plugIn.open(plugIn.middle()); }, .before = showAndAwait(plugIn, {}), .after = whole},
            {.act = refresh(lowest), .before = showAndAwait(lowest, {}), .after = whole});
    answer.reset();

    node.listsAnew = true;
    node.change = [&]
    {
        HotFolders::HotFolderCollection all;
        all.removeFolder(middle(all));
    };
    compare("Hot Folders: delete one", size, repetitions,
            {.act = [&] { plugIn.deleteSelected(); },
             .before =
                 [&]
             {
                 plugIn.show();
                 plugIn.select(plugIn.middle());
             },
             .after = other(size - 1)},
            {.act = refresh(lowest), .before = show(lowest), .after = other(size - 1)});
}

} // namespace Bench
