#include "tmgmt/templates/TemplateUserItem.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"

namespace TMgmt
{

TemplateUserItem::TemplateUserItem(const CSnapInItem& parent, const Tessaro::ServerApplication& application,
                                   const Core::String& username, bool enabled)
    : DeletableRow(parent, ResultNode{.displayName = L"Template", .image = enabled ? 17 : 23}),
      m_application(application),
      m_username(username)
{
}

const wchar_t* TemplateUserItem::GetResultPaneColInfo(int column)
{
    return column == 0 ? m_username.c_str() : L"";
}

HRESULT TemplateUserItem::OnDelete(Console& console)
{
    if (!accepted(
            [&]
            {
                Tessaro::ServerApplication changed = m_application;
                changed.deleteUser(m_username);
                Tessaro::ServerTemplates().updateApplication(changed);
            }))
    {
        return S_OK;
    }
    const auto parent = lister();
    console.refreshResultList(*parent);
    return console.selectScopeItem(parent->GetScopeData().ID);
}

} // namespace TMgmt
