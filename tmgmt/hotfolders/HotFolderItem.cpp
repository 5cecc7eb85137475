#include "tmgmt/hotfolders/HotFolderItem.h"

#include "brimlow/hotfolder/HotFolderCollection.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/frame/yesOrNo.h"
#include "tmgmt/hotfolders/EditHotFolderDlg.h"
#include "tmgmt/settings/RestartPreference.h"

namespace TMgmt
{

HotFolderItem::HotFolderItem(const CSnapInItem& parent, const HotFolders::HotFolder& hotFolder)
    : DeletableRow(parent, ResultNode{.displayName = hotFolder.getDisplayName().c_str(), .image = 8}),
      m_hotFolder(hotFolder)
{
}

const wchar_t* HotFolderItem::GetResultPaneColInfo(int column)
{
    switch (column)
    {
    case 0:
        m_name = m_hotFolder.getDisplayName();
        return m_name.c_str();
    case 1:
        return m_hotFolder.getFolder().c_str();
    case 2:
        return m_hotFolder.getFileMatchPattern().c_str();
    case 3:
        return yesOrNo(m_hotFolder.isMonitoringEnabled());
    default:
        return L"";
    }
}

HRESULT HotFolderItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_HOT_FOLDER_PROPERTIES ? edit(console) : DeletableRow::Command(command, console, type);
}

// Kept as is: a hot folder has a view of its own, which no console asks a row for.
HRESULT HotFolderItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (selecting)
    {
        console.insertColumn(0, L"File Name", 275);
    }
    return S_OK;
}

HRESULT HotFolderItem::OnDblClick(Console& console)
{
    return edit(console);
}

HRESULT HotFolderItem::OnDelete(Console& console)
{
    // Kept as is: a deletion that the library refuses is reported under the product's name.
    HotFolders::HotFolderCollection().removeFolder(m_hotFolder);
    console.refreshResultList(*lister());
    return S_OK;
}

HRESULT HotFolderItem::edit(Console& console)
{
    EditHotFolderDlg editor(m_hotFolder, readRestartPreference());
    if (editor.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    // Kept as is: the row of a hot folder shows what was entered even when it cannot be stored.
    m_hotFolder = editor.hotFolder;
    leaveStored();
    if (!accepted([&] { HotFolders::HotFolderCollection().updateFolder(m_hotFolder); }))
    {
        return S_OK;
    }
    writeRestartPreference(editor.restart);
    console.updateAllViews(*this, CCT_RESULT);
    if (readRestartPreference())
    {
        RestartServerService();
    }
    return S_OK;
}

} // namespace TMgmt
