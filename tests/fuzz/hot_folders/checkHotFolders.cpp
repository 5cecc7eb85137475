// Any bytes as the database of the hot folders: they are refused with a sentence that names the file, or else read
// without a change to the file, and can be changed as far as the damage allows.

#include "HotFolderStore.h"
#include "HotFolderTable.h"
#include "MemoryDatabase.h"
#include "checks.h"
#include "rules.h"

using HotFolders::HotFolder;
using HotFolders::HotFolderStore;

namespace
{

// Goes over everything that a hot folder holds.
void look(const HotFolder& folder)
{
    Core::String message;
    require(folder.validate(false, message) || !message.empty(), "what is wrong with a hot folder is said");
    folder.getDisplayName();
    folder.getOnSuccessActionList().getDescription();
    folder.getOnFailureActionList().getDescription();
}

} // namespace

void checkHotFolders(std::string_view content)
{
    const MemoryDatabase database(content);
    const Database::DatabaseFile file{database.path(), HotFolders::HotFolderTable::schema,
                                      std::chrono::milliseconds(0)};
    HotFolderStore store;
    HotFolderStore::List list = readOrRefuse(file.path, [&] { return store.get(file); });
    if (!list)
    {
        return;
    }
    database.requireUnchanged();
    for (const HotFolder& folder : *list)
    {
        look(folder);
    }

    HotFolder folder = list->empty() ? HotFolder() : list->front();
    folder.setFolder(L"C:\\In");
    folder.setOutputFolder(L"C:\\Out");
    switch (chosenChange(content, 3))
    {
    case 0:
        folder.setOnSuccessActionList({HotFolders::Action()});
        tryTo([&] { store.add(file, list, folder); });
        break;
    case 1:
        tryTo([&] { store.update(file, list, folder); });
        break;
    default:
        tryTo([&] { store.remove(file, list, folder); });
    }
}
