#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// One template of an application, as it was stored when the list was read.
class TemplatePropertyItem : public DeletableRow<TemplatePropertyItem>
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
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT rename(Console& console);

    Tessaro::ServerApplication m_application;
    Tessaro::Template m_template;
    Core::String m_name;
};

} // namespace TMgmt
