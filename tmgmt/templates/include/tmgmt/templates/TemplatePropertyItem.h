#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// One template of an application, as it was stored when the list was read.
class TemplatePropertyItem : public Item<TemplatePropertyItem>
{
  public:
    static constexpr GUID nodeType{0xe0df66eb, 0x957a, 0x4c1d, {0xb1, 0x8e, 0x6e, 0x4d, 0x55, 0xdb, 0xf3, 0xc9}};
    static constexpr UINT menu = IDM_TEMPLATE;

    // applicationNode is the node that lists this one.
    TemplatePropertyItem(const CSnapInItem& applicationNode, const Tessaro::ServerApplication& application,
                         const Tessaro::Template& file);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnSelect(bool isScope, bool isSelected, Console& console) override;
    HRESULT OnDelete(Console& console) override;
    HRESULT OnViewChange(LPARAM data, LPARAM hint, Console& console) override;

  private:
    HRESULT rename(Console& console);

    // By its cookie: a row can outlive the tree that it belongs to.
    MMC_COOKIE m_applicationNode;
    Tessaro::ServerApplication m_application;
    Tessaro::Template m_template;
    Core::String m_name;
};

} // namespace TMgmt
