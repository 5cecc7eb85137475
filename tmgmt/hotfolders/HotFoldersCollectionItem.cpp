#include "tmgmt/hotfolders/HotFoldersCollectionItem.h"

#include "brimlow/hotfolder/HotFolderCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/hotfolders/EditHotFolderDlg.h"

namespace TMgmt
{

HotFoldersCollectionItem::HotFoldersCollectionItem()
    : StoredCollection(ScopeNode{.displayName = L"Hot Folders", .image = 8, .childCount = 0})
{
}

HRESULT HotFoldersCollectionItem::GetResultViewType(LPOLESTR* viewType, LONG* options)
{
    // A console lets several rows be selected only in a list that asks for it before it is made: the view style alone
    // is not enough, and S_FALSE means a list without options.
    *viewType = nullptr;
    *options = MMC_VIEW_OPTIONS_MULTISELECT;
    return S_OK;
}

HRESULT HotFoldersCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_ADD_HOT_FOLDER ? add(console) : StoredCollection::Command(command, console, type);
}

HRESULT HotFoldersCollectionItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return S_OK;
    }
    console.insertColumn(0, L"Folder Name", 175);
    console.insertColumn(1, L"Full Path", 275);
    console.insertColumn(2, L"Pattern", 60);
    console.insertColumn(3, L"Enabled", 60);
    console.switchSortingOffAndMultiSelectionOn();
    console.refreshResultList(*this);
    return S_OK;
}

HRESULT HotFoldersCollectionItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_REFRESH, isSelected, console);
}

HotFoldersCollectionItem::Listing HotFoldersCollectionItem::read(Listing former)
{
    Listing now;
    accepted(
        [&]
        {
            const HotFolders::HotFolderCollection hotFolders;
            if (former.state == hotFolders.state())
            {
                now = std::move(former);
                return;
            }
            now.rows.reserve(static_cast<std::size_t>(hotFolders.getCount()));
            for (int index = 0; index < hotFolders.getCount(); ++index)
            {
                now.rows.emplace_back(new HotFolderItem(*this, hotFolders.getAt(index)));
            }
            now.state = hotFolders.state();
        });
    return now;
}

HRESULT HotFoldersCollectionItem::add(Console& console)
{
    EditHotFolderDlg editor;
    if (editor.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted([&] { HotFolders::HotFolderCollection().addNewFolder(editor.hotFolder); }))
    {
        return S_OK;
    }
    console.selectAndRefresh(*this);
    return S_OK;
}

} // namespace TMgmt
