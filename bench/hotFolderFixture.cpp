#include "hotFolderFixture.h"

#include "Fixtures.h"

#include <brimlow/hotfolder/HotFolderCollection.h>

namespace Bench
{

void makeHotFolders(std::size_t size)
{
    // The library makes the database and one hot folder; the script copies it, all in one transaction.
    HotFolders::HotFolder model;
    model.setFolder(L"C:\\bench\\hot");
    model.setOutputFolder(L"C:\\bench\\out");
    HotFolders::HotFolderCollection().addNewFolder(model);
    Fixtures::make("hot-folders", size);
}

} // namespace Bench
