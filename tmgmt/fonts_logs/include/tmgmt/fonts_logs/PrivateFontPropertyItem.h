#pragma once

#include "tmgmt/fonts_logs/rules/PrivateFont.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// One private font: a row of "Private Fonts", as it stood in the file when the list was read.
class PrivateFontPropertyItem : public DeletableRow<PrivateFontPropertyItem>
{
  public:
    static constexpr GUID nodeType{0x10158b7c, 0xd952, 0x49e4, {0x8a, 0xca, 0xcd, 0x3c, 0x47, 0xe3, 0xa3, 0x7d}};
    static constexpr UINT menu = IDM_PRIVATE_FONT;

    // parent is the node that lists the row.
    PrivateFontPropertyItem(const CSnapInItem& parent, PrivateFont font);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT edit(Console& console);
    void showChange(Console& console);

    PrivateFont m_font;
    Core::String m_storedKey;
};

} // namespace TMgmt
