#include "Fixtures.h"
#include "ListBench.h"
#include "floorLists.h"
#include "hotFolderFixture.h"
#include "subjects/subjects.h"

#include "tmgmt/resources/ids.h"

#include <brimlow/hotfolder/HotFolderCollection.h>

namespace Bench
{

void hotFolders(std::size_t size, std::chrono::milliseconds patience)
{
    Fixtures::make("nothing", 0);
    makeHotFolders(size);
    Fixtures::make("keep", 0);
    ListBench bench("Hot Folders", hotFolderList(), {L"Hot Folders"}, size, size, patience,
                    [] { Fixtures::make("kept", 0); });
    bench.show();
    bench.leave();
    bench.readTexts();
    bench.refresh("nothing changed");
    bench.refresh("changed elsewhere", [] { Fixtures::make("touched", 0); });

    const Entry added{IDD_HOT_FOLDER,
                      {{IDC_HOT_FOLDER_INPUT, L"C:\\bench\\hot"}, {IDC_HOT_FOLDER_OUTPUT, L"C:\\bench\\out"}}};
    bench.change({.what = "add one",
                  .command = [](List& list) { list.runCommand(L"&Add Hot Folder..."); },
                  .least =
                      [&]
                  {
                      HotFolders::HotFolder hotFolder;
                      hotFolder.setFolder(added.texts.at(IDC_HOT_FOLDER_INPUT));
                      hotFolder.setOutputFolder(added.texts.at(IDC_HOT_FOLDER_OUTPUT));
                      HotFolders::HotFolderCollection().addNewFolder(hotFolder);
                  },
                  .rows = size + 1,
                  .entry = added});

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
                  .entry = Entry{IDD_HOT_FOLDER},
                  .listsAnew = false});
    bench.change({.what = "delete one",
                  .command = &List::deleteSelected,
                  .least =
                      [&]
                  {
                      HotFolders::HotFolderCollection all;
                      all.removeFolder(middle(all));
                  },
                  .rows = size - 1});
}

} // namespace Bench
