#pragma once

#include "brimlow/system/String.h"
#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// One log file: a row of "Log Files". It keeps no folder: where the file is is asked for when it is opened or deleted.
class LogListPropertyItem : public Item<LogListPropertyItem>
{
  public:
    static constexpr GUID nodeType{0x0c63eba1, 0x9ef4, 0x432b, {0xac, 0x5d, 0x94, 0x54, 0x39, 0xea, 0x79, 0x37}};
    static constexpr UINT menu = IDM_LOG_FILE;

    // parent is the node that lists the row. fileName has no folder.
    LogListPropertyItem(const CSnapInItem& parent, Core::String fileName);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnSelect(bool isScopeItem, bool isSelected, Console& console) override;
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT open() const;

    // By its cookie: a row can outlive the tree that it belongs to.
    MMC_COOKIE m_parent;
    Core::String m_fileName;
};

} // namespace TMgmt
