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
    try
    {
        Tessaro::ServerTemplates templates;
        // Kept as is: the id is a position, so that this node shows its neighbour's users once an application before
        // its own was removed.
        m_application = templates.getAt(m_application.getId());
        return rowsOf(Tessaro::UserCollection());
    }
    catch (const Core::Exception& exception)
    {
        reportRefusal(exception);
        return {};
    }
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
        try
        {
            const Tessaro::User& user = accounts.getUserByName(name);
            rows.emplace_back(new TemplateUserItem(*this, application, user.getUsername(), user.isEnabled()));
        }
        catch (const Core::Exception& exception)
        {
            reportRefusal(exception);
        }
    }
    return rows;
}

HRESULT TemplateUserCollection::grantAccess(Console& console)
{
    AddTemplateUserDlg dialog(m_application);
    try
    {
        if (dialog.show(GetActiveWindow()) != IDOK)
        {
            return S_OK;
        }
        Tessaro::ServerTemplates().updateApplication(dialog.application);
    }
    catch (const Core::Exception& exception)
    {
        reportRefusal(exception);
        return S_OK;
    }
    console.refreshResultList(*this);
    return S_OK;
}

} // namespace TMgmt
