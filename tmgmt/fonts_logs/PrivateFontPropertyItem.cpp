#include "tmgmt/fonts_logs/PrivateFontPropertyItem.h"

#include "tmgmt/fonts_logs/AddPrivateFontDlg.h"
#include "tmgmt/fonts_logs/PrivateFontsFile.h"
#include "tmgmt/frame/yesOrNo.h"
#include "tmgmt/settings/RestartPreference.h"

namespace TMgmt
{

PrivateFontPropertyItem::PrivateFontPropertyItem(const CSnapInItem& parent, PrivateFont font)
    : DeletableRow(parent, ResultNode{.displayName = L"Private Font Item", .image = 4}), m_font(std::move(font))
{
}

const wchar_t* PrivateFontPropertyItem::GetResultPaneColInfo(int column)
{
    switch (column)
    {
    case 0:
        return m_font.family.c_str();
    case 1:
        return m_font.file.c_str();
    case 2:
        return yesOrNo(m_font.isBold);
    case 3:
        return yesOrNo(m_font.isItalic);
    default:
        return L"";
    }
}

HRESULT PrivateFontPropertyItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_EDIT_PRIVATE_FONT ? edit(console) : DeletableRow::Command(command, console, type);
}

HRESULT PrivateFontPropertyItem::OnDblClick(Console& console)
{
    return edit(console);
}

HRESULT PrivateFontPropertyItem::OnDelete(Console& console)
{
    deletePrivateFont(fontKey(m_font));
    showChange(console);
    return S_OK;
}

HRESULT PrivateFontPropertyItem::edit(Console& console)
{
    AddPrivateFontDlg dialog;
    dialog.font = m_font;
    dialog.restart = readRestartPreference();
    // Made from what the row shows. Kept as is: an entry whose key another program wrote differently is not found and
    // stays beside the new one.
    m_storedKey = fontKey(dialog.font);
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    // What the file cannot hold is refused while the old entry is still there.
    checkPrivateFont(dialog.font);
    deletePrivateFont(m_storedKey);
    writeRestartPreference(dialog.restart);
    storePrivateFont(dialog.font);
    showChange(console);
    return S_OK;
}

// After the file was changed: the list anew, and the service where it is to take changes at once.
void PrivateFontPropertyItem::showChange(Console& console)
{
    const Core::SmartPtr<CSnapInItem> fonts = lister();
    // Kept as is: the node itself stands where a handle of the console's belongs, so that nothing is selected.
    console.selectScopeItem(reinterpret_cast<HSCOPEITEM>(fonts.get()));
    console.refreshResultList(*fonts);
    if (readRestartPreference())
    {
        RestartServerService();
    }
}

} // namespace TMgmt
