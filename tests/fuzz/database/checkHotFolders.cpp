#include "checkDatabase.h"

#include "HotFolderStore.h"
#include "HotFolderTable.h"
#include "rules.h"

using Core::String;
using HotFolders::HotFolder;
using HotFolders::HotFolderStore;

namespace
{

// Goes over everything that a hot folder holds.
void look(const HotFolder& folder)
{
    String message;
    folder.validate(false, message);
    folder.getDisplayName();
    folder.getOnSuccessActionList().getDescription();
    folder.getOnFailureActionList().getDescription();
}

} // namespace

void checkHotFolders(const String& path, std::string_view content)
{
    writeDatabase(path, content);
    const Database::DatabaseFile file{path, HotFolders::HotFolderTable::schema, std::chrono::milliseconds(0)};
    HotFolderStore store;
    HotFolderStore::List list = readOrRefuse(path, [&] { return store.get(file); });
    if (!list)
    {
        return;
    }
    requireUnchanged(path, content);
    for (const HotFolder& folder : *list)
    {
        look(folder);
    }

    HotFolder folder;
    folder.setFolder(L"C:\\In");
    folder.setOutputFolder(L"C:\\Out");
    folder.setOnSuccessActionList({HotFolders::Action()});
    tryTo([&] { store.add(file, list, folder); });
    if (!list->empty())
    {
        folder = list->front();
        folder.setFolder(L"C:\\Other");
        folder.setOutputFolder(L"C:\\Out");
        tryTo([&] { store.update(file, list, folder); });
        tryTo([&] { store.remove(file, list, folder); });
    }
    tryTo([&] { HotFolderStore().get(file); });
}
