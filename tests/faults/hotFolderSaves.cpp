#include "Save.h"
#include "soundness.h"

#include "HotFolderStore.h"
#include "brimlow/hotfolder/HotFolderCollection.h"

#include <sstream>

namespace HotFolderSaves
{
namespace
{

using namespace HotFolders;

void add(const wchar_t* path)
{
    HotFolder folder;
    folder.setFolder(path);
    folder.setOutputFolder(L"C:\\Out");
    Action move;
    move.setType(ActionType::MoveInputFile);
    move.setDestinationPath(L"C:\\Done");
    folder.setOnSuccessActionList({Action(), move});
    HotFolderCollection().addNewFolder(folder);
}

void addTwo()
{
    add(L"C:\\a");
    add(L"C:\\b");
}

void addNew()
{
    add(L"C:\\new");
}

void addNext()
{
    add(L"C:\\next");
}

void changeFirst()
{
    HotFolderCollection folders;
    HotFolder first = folders.getAt(0);
    first.setFolder(L"C:\\changed");
    Action call;
    call.setType(ActionType::CallWebService);
    call.setHttpUrl(L"http://localhost/");
    first.setOnFailureActionList({call});
    folders.updateFolder(first);
}

void removeFirst()
{
    HotFolderCollection folders;
    folders.removeFolder(folders.getAt(0));
}

std::string look()
{
    std::ostringstream all;
    HotFolderStore store;
    const HotFolderStore::List folders = store.get(HotFolderStore::machineDatabase());
    for (const HotFolder& folder : *folders)
    {
        all << folder.getFolder().toUtf8() << ';';
        for (const ActionList& actions : {folder.getOnSuccessActionList(), folder.getOnFailureActionList()})
        {
            for (const Action& action : actions)
            {
                all << ' ' << action.getDescription().toUtf8();
            }
            all << ';';
        }
    }
    requireSound(HotFolderStore::machineDatabase());
    return all.str();
}

} // namespace
} // namespace HotFolderSaves

std::vector<Save> hotFolderSaves()
{
    using namespace HotFolderSaves;
    return {
        {"hot folder, the first one", [] {}, addNew, addNext, look},
        {"hot folder, added", addTwo, addNew, addNext, look},
        {"hot folder, changed", addTwo, changeFirst, addNext, look},
        {"hot folder, removed", addTwo, removeFirst, addNext, look},
    };
}
