#include "Fixtures.h"
#include "ListBench.h"
#include "hotFolderFixture.h"
#include "subjects/subjects.h"

#include <brimlow/hotfolder/HotFolderCollection.h>

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
    const auto writeAnew = [size] { Fixtures::make("hot-folders", size); }; // as another program would
    ListBench bench("Hot Folders",
                    {.name = L"Hot Folders",
                     .columns = {L"Folder Name", L"Full Path", L"Pattern", L"Enabled"},
                     .read = hotFolderCells},
                    {L"Hot Folders"}, size, size, repetitions, writeAnew);
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.refresh("nothing changed");
    bench.refresh("changed elsewhere", writeAnew);

    const std::map<int, std::wstring> added{{inputEdit, L"C:\\bench\\hot"}, {outputEdit, L"C:\\bench\\out"}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add Hot Folder..."); },
                  .least =
                      [&]
                  {
                      HotFolders::HotFolder hotFolder;
                      hotFolder.setFolder(added.at(inputEdit));
                      hotFolder.setOutputFolder(added.at(outputEdit));
                      HotFolders::HotFolderCollection().addNewFolder(hotFolder);
                  },
                  .rows = size + 1,
                  .entered = added});

    const auto middle = [size](const HotFolders::HotFolderCollection& all)
    { return all.getAt(static_cast<int>(size / 2)); };
    bench.change({.what = "edit one",
                  .command = [](List& list) { list.open(list.middle()); },
                  .least =
                      [&]
                  {
                      HotFolders::HotFolderCollection all;
                      all.updateFolder(middle(all));
                  },
                  .rows = size,
                  .entered = std::map<int, std::wstring>(),
                  .listsAnew = false});
    bench.change({.what = "delete one",
                  .command = [](List& list) { list.deleteSelected(); },
                  .least =
                      [&]
                  {
                      HotFolders::HotFolderCollection all;
                      all.removeFolder(middle(all));
                  },
                  .rows = size - 1});
}

} // namespace Bench
