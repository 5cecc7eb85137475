#include "tmgmt/templates/TemplateResourcesItem.h"

#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/templates/EditFileDlg.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

TemplateResourcesItem::TemplateResourcesItem(const CSnapInItem& parent, const Tessaro::ResourcesFolder& folder,
                                             const Tessaro::ResourceFile& file)
    : Item(ResultNode{.displayName = L"File", .image = 22}),
      m_parent(parent.cookie()),
      m_folder(folder),
      m_file(file),
      m_name(file.getDisplayName())
{
}

const wchar_t* TemplateResourcesItem::GetResultPaneColInfo(int column)
{
    return column == 0 ? m_name.c_str() : L"";
}

HRESULT TemplateResourcesItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_RENAME_RESOURCE_FILE ? rename(console) : Item::Command(command, console, type);
}

HRESULT TemplateResourcesItem::OnDblClick(Console& console)
{
    return rename(console);
}

HRESULT TemplateResourcesItem::OnSelect(bool, bool isSelected, Console& console)
{
    return enableVerb(MMC_VERB_DELETE, isSelected, console);
}

HRESULT TemplateResourcesItem::OnDelete(Console& console)
{
    try
    {
        m_folder.deleteResourceFile(m_file);
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

HRESULT TemplateResourcesItem::OnViewChange(LPARAM, LPARAM, Console& console)
{
    console.updateRow(*this);
    return S_OK;
}

HRESULT TemplateResourcesItem::rename(Console& console)
{
    EditFileDlg dialog(m_name, m_folder.getResourcesFolderPath());
    if (dialog.show(GetActiveWindow()) != IDOK || dialog.name == m_name)
    {
        return S_OK;
    }
    try
    {
        m_folder.renameReourceFile(m_file, renamedPath(m_file.getResourceFilePath(), m_name, dialog.name));
    }
    catch (const Core::Exception& exception)
    {
        reportRefusal(exception);
        return S_OK;
    }
    console.refreshResultList(*itemOfCookie(m_parent));
    return S_OK;
}

} // namespace TMgmt
