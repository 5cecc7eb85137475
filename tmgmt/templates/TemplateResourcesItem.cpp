#include "tmgmt/templates/TemplateResourcesItem.h"

#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/templates/EditFileDlg.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

TemplateResourcesItem::TemplateResourcesItem(const CSnapInItem& parent, const Tessaro::ResourcesFolder& folder,
                                             const Tessaro::ResourceFile& file)
    : DeletableRow(parent, ResultNode{.displayName = L"File", .image = 22}),
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
    return command == ID_RENAME_RESOURCE_FILE ? rename(console) : DeletableRow::Command(command, console, type);
}

HRESULT TemplateResourcesItem::OnDblClick(Console& console)
{
    return rename(console);
}

HRESULT TemplateResourcesItem::OnDelete(Console& console)
{
    if (!accepted([&] { m_folder.deleteResourceFile(m_file); }))
    {
        return S_OK;
    }
    const auto parent = lister();
    console.refreshResultList(*parent);
    return console.selectScopeItem(parent->GetScopeData().ID);
}

HRESULT TemplateResourcesItem::rename(Console& console)
{
    EditFileDlg dialog(m_name, m_folder.getResourcesFolderPath());
    if (dialog.show(GetActiveWindow()) != IDOK || dialog.name == m_name)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            { m_folder.renameReourceFile(m_file, renamedPath(m_file.getResourceFilePath(), m_name, dialog.name)); }))
    {
        return S_OK;
    }
    console.refreshResultList(*lister());
    return S_OK;
}

} // namespace TMgmt
