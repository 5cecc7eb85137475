#include "tmgmt/templates/TemplateUserCollection.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/templates/AddTemplateUserDlg.h"
#include "tmgmt/templates/rules/access.h"

namespace TMgmt
{

TemplateUserCollection::TemplateUserCollection(const Tessaro::ServerApplication& application,
                                               const Tessaro::UserCollection& accounts)
    : StoredCollection(ScopeNode{.displayName = L"Users", .image = 19, .childCount = 0}), m_application(application)
{
    for (const Core::String& name : m_application.getUsers())
    {
        if (name != guestEntry)
        {
            accepted([&] { accounts.getUserByName(name); });
        }
    }
}

HRESULT TemplateUserCollection::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_GRANT_ACCESS ? grantAccess(console) : StoredCollection::Command(command, console, type);
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

TemplateUserCollection::Listing TemplateUserCollection::read(Listing former)
{
    Listing now;
    accepted(
        [&]
        {
            Tessaro::ServerTemplates templates;
            // Kept as is: the id is a position, so that this node shows its neighbour's users once an application
            // before its own was removed.
            m_application = templates.getAt(m_application.getId());
            const Tessaro::UserCollection accounts;
            now = former.state == accounts.state() ? std::move(former) : list(accounts);
            if (!(templates.state() == accounts.state()))
            {
                // Somebody changed something between the two.
                now.state = Core::SharedIdentity();
            }
        });
    return now;
}

TemplateUserCollection::Listing TemplateUserCollection::list(const Tessaro::UserCollection& accounts) const
{
    // A copy: while a message is open the console can be used, and this node read anew.
    const Tessaro::ServerApplication application = m_application;
    Listing listing;
    bool isComplete = true;
    listing.rows.reserve(application.getUsers().size());
    for (const Core::String& name : application.getUsers())
    {
        if (name == guestEntry)
        {
            listing.rows.emplace_back(new TemplateUserItem(*this, application, name, accounts.isGuestEnabled()));
            continue;
        }
        isComplete &= accepted(
            [&]
            {
                const Tessaro::User& user = accounts.getUserByName(name);
                listing.rows.emplace_back(
                    new TemplateUserItem(*this, application, user.getUsername(), user.isEnabled()));
            });
    }
    if (isComplete)
    {
        listing.state = accounts.state();
    }
    return listing;
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
