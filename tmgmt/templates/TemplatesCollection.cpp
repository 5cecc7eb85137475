#include "tmgmt/templates/TemplatesCollection.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/frame/scopeChildren.h"
#include "tmgmt/templates/EditApplicationDlg.h"
#include "tmgmt/templates/TemplatesCollectionItem.h"
#include "tmgmt/templates/rules/access.h"
#include "tmgmt/templates/rules/names.h"
#include "tmgmt/ui/WaitCursor.h"

namespace TMgmt
{

TemplatesCollection::TemplatesCollection()
    : Item(ScopeNode{.displayName = L"Server Templates", .image = 8, .childCount = 0})
{
    load();
}

HRESULT TemplatesCollection::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_ADD_APPLICATION ? add(console) : Item::Command(command, console, type);
}

HRESULT TemplatesCollection::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return E_NOTIMPL;
    }
    console.switchSortingOff();
    return S_OK;
}

HRESULT TemplatesCollection::OnExpand(bool expanding, HSCOPEITEM handle, Console& console)
{
    return expandChildren(*this, m_applications, expanding, handle, console);
}

HRESULT TemplatesCollection::OnRefresh(Console& console)
{
    // What the console shows below the node lives until it has let go of it.
    const Applications former = m_applications;
    load();
    return replaceChildren(*this, m_applications, console);
}

void TemplatesCollection::load()
{
    const WaitCursor wait;
    m_applications = readApplications();
    GetScopeData().cChildren = static_cast<int>(m_applications.size());
}

TemplatesCollection::Applications TemplatesCollection::readApplications() const
{
    Applications applications;
    const bool complete = accepted(
        [&]
        {
            Tessaro::ServerTemplates templates;
            const Tessaro::UserCollection accounts;
            for (int index = 0; index < templates.getCount(); ++index)
            {
                applications.emplace_back(new TemplatesCollectionItem(*this, templates.getAt(index), accounts));
            }
        });
    return complete ? applications : Applications();
}

HRESULT TemplatesCollection::add(Console& console)
{
    EditApplicationDlg dialog;
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                Tessaro::ServerTemplates templates;
                Tessaro::ServerApplication application;
                application.setApplicationPath(Core::IO::FileSystem::combinePath(applicationsFolder(), dialog.name));
                application.setParser(dialog.engine);
                application.addUser(guestEntry);
                templates.addNewApplication(application);
            }))
    {
        return S_OK;
    }
    return OnRefresh(console);
}

} // namespace TMgmt
