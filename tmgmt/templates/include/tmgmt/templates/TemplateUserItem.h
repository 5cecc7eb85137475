#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// A user who may use the templates of an application.
class TemplateUserItem : public DeletableRow<TemplateUserItem>
{
  public:
    // Kept as is: TemplateResourcesItem and TemplateUserItem have the same node type.
    static constexpr GUID nodeType{0x5fbbcef6, 0x3cac, 0x4472, {0xaa, 0x4d, 0x36, 0xbc, 0xd0, 0xfc, 0x7d, 0xa3}};

    // parent is the node that lists this one. enabled tells whether the user can log on to the server at all.
    TemplateUserItem(const CSnapInItem& parent, const Tessaro::ServerApplication& application,
                     const Core::String& username, bool enabled);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT OnDelete(Console& console) override;

  private:
    Tessaro::ServerApplication m_application;
    Core::String m_username;
};

} // namespace TMgmt
