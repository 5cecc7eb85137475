#include "tmgmt/templates/TemplateUserItem.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/snapin/ItemAccess.h"

namespace TMgmt
{

TemplateUserItem::TemplateUserItem(const CSnapInItem& parent, const Tessaro::ServerApplication& application,
                                   const Core::String& username, bool enabled)
    : Item(ResultNode{.displayName = L"Template", .image = enabled ? 17 : 23}),
      m_parent(parent.cookie()),
      m_application(application),
      m_username(username)
{
}

const wchar_t* TemplateUserItem::GetResultPaneColInfo(int column)
{
    return column == 0 ? m_username.c_str() : L"";
}

HRESULT TemplateUserItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT TemplateUserItem::OnDelete(Console& console)
{
    try
    {
        m_application.deleteUser(m_username);
        Tessaro::ServerTemplates().updateApplication(m_application);
    }
    catch (const Core::Exception& exception)
    {
        reportRefusal(exception);
        return S_OK;
    }
    const auto parent = itemOfCookie(m_parent);
    console.refreshResultList(*parent);
    return console.selectScopeItem(parent->GetScopeData().ID);
}

HRESULT TemplateUserItem::OnViewChange(LPARAM, LPARAM, Console& console)
{
    console.updateRow(*this);
    return S_OK;
}

} // namespace TMgmt
