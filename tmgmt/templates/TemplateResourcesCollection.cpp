#include "tmgmt/templates/TemplateResourcesCollection.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/templates/EditResourceDlg.h"
#include "tmgmt/templates/EditResourceFileDlg.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

TemplateResourcesCollection::TemplateResourcesCollection(const CSnapInItem& applicationNode,
                                                         const Tessaro::ServerApplication& application,
                                                         const Tessaro::ResourcesFolder& folder)
    : StoredCollection(ScopeNode{.displayName = L"Resources", .image = 8, .childCount = 0}),
      m_applicationNode(applicationNode.cookie()),
      m_application(application),
      m_folder(folder)
{
    setDisplayName(m_folder.getDisplayName().c_str());
}

HRESULT TemplateResourcesCollection::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    switch (command)
    {
    case ID_RENAME_RESOURCE_FOLDER:
        return rename(console);
    case ID_ADD_RESOURCE_FILE:
        return addFile(console);
    default:
        return StoredCollection::Command(command, console, type);
    }
}

HRESULT TemplateResourcesCollection::OnShow(bool selecting, HSCOPEITEM, Console& console)
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

HRESULT TemplateResourcesCollection::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT TemplateResourcesCollection::OnDelete(Console& console)
{
    if (!accepted([&] { m_application.deleteResource(m_folder.getResourcesFolderPath()); }))
    {
        return S_OK;
    }
    const auto applicationNode = itemOfCookie(m_applicationNode);
    console.removeScopeItem(*this);
    console.selectScopeItem(applicationNode->GetScopeData().ID);
    // The folders behind this one have other positions now.
    return applicationNode->Notify(MMCN_REFRESH, 0, 0, console, CCT_SCOPE);
}

void TemplateResourcesCollection::refreshResultList(Console& console)
{
    const std::wstring formerName = displayName();
    StoredCollection::refreshResultList(console);
    if (displayName() != formerName)
    {
        console.updateScopeItem(*this);
    }
}

TemplateResourcesCollection::Listing TemplateResourcesCollection::read(Listing former)
{
    Listing now;
    accepted(
        [&]
        {
            Tessaro::ServerTemplates templates;
            // Kept as is: the ids are positions, so that a folder's node shows its neighbour once an application or a
            // folder before it was removed.
            Tessaro::ServerApplication& application = templates.getAt(m_application.getId());
            m_folder = application.getResourceFolderAt(m_folder.getId());
            m_application = application;
            setDisplayName(m_folder.getDisplayName().c_str());
            if (former.state == templates.state())
            {
                now = std::move(former);
                return;
            }
            now.rows.reserve(static_cast<std::size_t>(m_folder.getCount()));
            for (int index = 0; index < m_folder.getCount(); ++index)
            {
                now.rows.emplace_back(new TemplateResourcesItem(*this, m_folder, m_folder.getAt(index)));
            }
            now.state = templates.state();
        });
    return now;
}

HRESULT TemplateResourcesCollection::rename(Console& console)
{
    const Core::String formerName = m_folder.getDisplayName();
    EditResourceDlg dialog(m_application, formerName);
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                if (dialog.name != formerName)
                {
                    m_application.renameResource(
                        m_folder, renamedPath(m_folder.getResourcesFolderPath(), formerName, dialog.name));
                }
            }))
    {
        return S_OK;
    }
    console.selectAndRefresh(*this);
    return S_OK;
}

HRESULT TemplateResourcesCollection::addFile(Console& console)
{
    EditResourceFileDlg dialog;
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                const WaitCursor wait;
                m_folder.addResourceFile(dialog.file);
            }))
    {
        return S_OK;
    }
    console.refreshResultList(*this);
    return S_OK;
}

} // namespace TMgmt
