#include "tmgmt/templates/TemplatesCollectionItem.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/frame/scopeChildren.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/templates/AddTemplateDlg.h"
#include "tmgmt/templates/EditApplicationDlg.h"
#include "tmgmt/templates/EditResourceDlg.h"
#include "tmgmt/templates/TemplateResourcesCollection.h"
#include "tmgmt/templates/TemplateUserCollection.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

using Tessaro::ServerApplication;
using Tessaro::ServerTemplates;

TemplatesCollectionItem::TemplatesCollectionItem(const CSnapInItem& parent, const ServerApplication& application,
                                                 const Tessaro::UserCollection& accounts)
    : StoredCollection(ScopeNode{.displayName = application.getDisplayName().c_str(), .image = 8, .childCount = 1}),
      m_parent(parent.cookie()),
      m_application(application),
      m_children{new TemplateUserCollection(application, accounts)}
{
}

HRESULT TemplatesCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    switch (command)
    {
    case ID_EDIT_APPLICATION:
        return edit(console);
    case ID_ADD_TEMPLATE:
        return addTemplate(console);
    case ID_ADD_RESOURCE_FOLDER:
        return addFolder(console);
    default:
        return StoredCollection::Command(command, console, type);
    }
}

HRESULT TemplatesCollectionItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return S_OK;
    }
    console.switchSortingOff();
    console.insertColumn(0, L"Name", 250);
    console.refreshResultList(*this);
    return S_OK;
}

HRESULT TemplatesCollectionItem::OnExpand(bool expanding, HSCOPEITEM handle, Console& console)
{
    // What the console shows below the node lives until it has let go of it.
    const Children former = m_children;
    if (expanding)
    {
        m_children = readChildren();
    }
    return expandChildren(*this, m_children, expanding, handle, console);
}

HRESULT TemplatesCollectionItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT TemplatesCollectionItem::OnDelete(Console& console)
{
    if (!accepted(
            [&]
            {
                const WaitCursor wait;
                ServerTemplates().deleteApplication(m_application.getApplicationPath());
            }))
    {
        return S_OK;
    }
    const auto parent = itemOfCookie(m_parent);
    console.removeScopeItem(*this);
    console.selectScopeItem(parent->GetScopeData().ID);
    return parent->Notify(MMCN_REFRESH, 0, 0, console, CCT_SCOPE);
}

HRESULT TemplatesCollectionItem::OnRefresh(Console& console)
{
    console.refreshResultList(*this);
    return refreshChildren(console);
}

HRESULT TemplatesCollectionItem::refreshChildren(Console& console)
{
    const Children former = m_children;
    m_children = readChildren();
    return replaceChildren(*this, m_children, console);
}

Core::SharedIdentity TemplatesCollectionItem::readApplication()
{
    ServerTemplates templates;
    // Kept as is: an application's id is its position, so that its node shows its neighbour once one before it was
    // removed.
    m_application = templates.getAt(m_application.getId());
    return templates.state();
}

TemplatesCollectionItem::Listing TemplatesCollectionItem::read(Listing former)
{
    Listing now;
    accepted(
        [&]
        {
            const Core::SharedIdentity state = readApplication();
            if (former.state == state)
            {
                now = std::move(former);
                return;
            }
            now.rows.reserve(static_cast<std::size_t>(m_application.getTemplatesCount()));
            for (int index = 0; index < m_application.getTemplatesCount(); ++index)
            {
                now.rows.emplace_back(new TemplatePropertyItem(*this, m_application, m_application.getAt(index)));
            }
            now.state = state;
        });
    return now;
}

TemplatesCollectionItem::Children TemplatesCollectionItem::readChildren()
{
    Children children{m_children.front()};
    accepted(
        [&]
        {
            readApplication();
            for (int index = 0; index < m_application.getResourcesCount(); ++index)
            {
                children.emplace_back(
                    new TemplateResourcesCollection(*this, m_application, m_application.getResourceFolderAt(index)));
            }
        });
    return children;
}

HRESULT TemplatesCollectionItem::edit(Console& console)
{
    const Core::String name = m_application.getDisplayName();
    EditApplicationDlg dialog(name, m_application.getParser());
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    ServerApplication edited = m_application;
    edited.setParser(dialog.engine);
    if (!accepted(
            [&]
            {
                ServerTemplates templates;
                if (dialog.name != name)
                {
                    const Core::String path = renamedPath(edited.getApplicationPath(), name, dialog.name);
                    templates.renameApplication(edited, path);
                    edited.setApplicationPath(path);
                }
                else
                {
                    templates.updateApplication(edited);
                }
            }))
    {
        return S_OK;
    }
    m_application = edited;
    setDisplayName(m_application.getDisplayName().c_str());
    console.updateScopeItem(*this);
    console.selectAndRefresh(*this);
    return refreshChildren(console);
}

HRESULT TemplatesCollectionItem::addTemplate(Console& console)
{
    AddTemplateDlg dialog(m_application.getDisplayName());
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                const WaitCursor wait;
                ServerTemplates templates;
                m_application.addNewTemplate(dialog.file);
                templates.updateApplication(m_application);
            }))
    {
        return S_OK;
    }
    console.refreshResultList(*this);
    return S_OK;
}

HRESULT TemplatesCollectionItem::addFolder(Console& console)
{
    EditResourceDlg dialog(m_application);
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                ServerTemplates templates;
                m_application.addNewResource(dialog.name);
                templates.updateApplication(m_application);
            }))
    {
        return S_OK;
    }
    return OnRefresh(console);
}

} // namespace TMgmt
