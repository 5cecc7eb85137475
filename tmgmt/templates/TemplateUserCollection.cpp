#include "tmgmt/templates/TemplateUserCollection.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/templates/AddTemplateUserDlg.h"
#include "tmgmt/templates/rules/access.h"

namespace TMgmt
{

TemplateUserCollection::TemplateUserCollection(const Tessaro::ServerApplication& application,
                                               const Tessaro::UserCollection& accounts)
    : Collection(ScopeNode{.displayName = L"Users", .image = 19, .childCount = 0}), m_application(application)
{
    setRows(rowsOf(accounts));
}

HRESULT TemplateUserCollection::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_GRANT_ACCESS ? grantAccess(console) : Collection::Command(command, console, type);
}

HRESULT TemplateUserCollection::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return S_OK;
    }
    console.switchSortingOff();
    console.insertColumn(0, L"Name", 150);
    console.refreshResultList(*this);
    return S_OK;
}

TemplateUserCollection::Rows TemplateUserCollection::readRows()
{
    Rows rows;
    accepted(
        [&]
        {
            Tessaro::ServerTemplates templates;
            // Kept as is: the id is a position, so that this node shows its neighbour's users once an application
            // before its own was removed.
            m_application = templates.getAt(m_application.getId());
            rows = rowsOf(Tessaro::UserCollection());
        });
    return rows;
}

TemplateUserCollection::Rows TemplateUserCollection::rowsOf(const Tessaro::UserCollection& accounts) const
{
    // A copy: while a message is open the console can be used, and this node read anew.
    const Tessaro::ServerApplication application = m_application;
    Rows rows;
    rows.reserve(application.getUsers().size());
    for (const Core::String& name : application.getUsers())
    {
        if (name == guestEntry)
        {
            rows.emplace_back(new TemplateUserItem(*this, application, name, accounts.isGuestEnabled()));
            continue;
        }
        accepted(
            [&]
            {
                const Tessaro::User& user = accounts.getUserByName(name);
                rows.emplace_back(new TemplateUserItem(*this, application, user.getUsername(), user.isEnabled()));
            });
    }
    return rows;
}

HRESULT TemplateUserCollection::grantAccess(Console& console)
{
    AddTemplateUserDlg dialog(m_application);
    bool granted = false;
    accepted(
        [&]
        {
            if (dialog.show(GetActiveWindow()) == IDOK)
            {
                Tessaro::ServerTemplates().updateApplication(dialog.application);
                granted = true;
            }
        });
    if (granted)
    {
        console.refreshResultList(*this);
    }
    return S_OK;
}

} // namespace TMgmt
