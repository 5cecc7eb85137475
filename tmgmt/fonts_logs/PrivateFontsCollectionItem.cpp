#include "tmgmt/fonts_logs/PrivateFontsCollectionItem.h"

#include "tmgmt/fonts_logs/AddPrivateFontDlg.h"
#include "tmgmt/fonts_logs/PrivateFontsFile.h"

namespace TMgmt
{

PrivateFontsCollectionItem::PrivateFontsCollectionItem()
    : Collection(ScopeNode{.displayName = L"Private Fonts", .image = 5, .childCount = 0})
{
    reload();
}

HRESULT PrivateFontsCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_ADD_PRIVATE_FONT ? add(console) : Collection::Command(command, console, type);
}

HRESULT PrivateFontsCollectionItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return S_OK;
    }
    console.switchSortingOff();
    // The first finds an empty header and comes to 0, where the second leaves it. Kept as is: both of the first two
    // columns are asked for at 1.
    console.insertColumn(1, L"Font Family Name", 150);
    console.insertColumn(1, L"Font File Path", 350);
    console.insertColumn(2, L"Is Bold", 100);
    console.insertColumn(3, L"Is Italic", 100);
    console.refreshResultList(*this);
    if (!rows().empty())
    {
        console.selectFirstRow();
    }
    return S_OK;
}

PrivateFontsCollectionItem::Rows PrivateFontsCollectionItem::readRows()
{
    Rows rows;
    try
    {
        for (PrivateFont& font : readPrivateFonts())
        {
            rows.emplace_back(new PrivateFontPropertyItem(*this, std::move(font)));
        }
        m_report->succeeded();
    }
    catch (const Core::Exception& exception)
    {
        m_report->failed(exception);
    }
    return rows;
}

HRESULT PrivateFontsCollectionItem::add(Console& console)
{
    AddPrivateFontDlg dialog;
    if (dialog.show(GetActiveWindow()) == IDOK)
    {
        storePrivateFont(dialog.font);
        console.selectAndRefresh(*this);
    }
    return S_OK;
}

} // namespace TMgmt
