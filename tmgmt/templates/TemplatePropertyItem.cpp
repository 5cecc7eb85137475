#include "tmgmt/templates/TemplatePropertyItem.h"

#include "brimlow/tessaro/ServerTemplates.h"
#include "tmgmt/frame/reportRefusal.h"
#include "tmgmt/settings/RestartPreference.h"
#include "tmgmt/templates/EditTemplateDlg.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

TemplatePropertyItem::TemplatePropertyItem(const CSnapInItem& applicationNode,
                                           const Tessaro::ServerApplication& application, const Tessaro::Template& file)
    : DeletableRow(applicationNode,
                   ResultNode{.displayName = L"Template", .image = templateImage(file.getDisplayName())}),
      m_application(application),
      m_template(file),
      m_name(file.getDisplayName())
{
}

const wchar_t* TemplatePropertyItem::GetResultPaneColInfo(int column)
{
    return column == 0 ? m_name.c_str() : L"";
}

HRESULT TemplatePropertyItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_EDIT_TEMPLATE ? rename(console) : DeletableRow::Command(command, console, type);
}

HRESULT TemplatePropertyItem::OnDblClick(Console& console)
{
    return rename(console);
}

HRESULT TemplatePropertyItem::OnDelete(Console& console)
{
    if (!accepted(
            [&]
            {
                Tessaro::ServerTemplates templates;
                m_application.deleteTemplate(m_template);
                templates.updateApplication(m_application);
            }))
    {
        return S_OK;
    }
    const auto applicationNode = lister();
    console.refreshResultList(*applicationNode);
    console.selectScopeItem(applicationNode->GetScopeData().ID);
    return S_OK;
}

HRESULT TemplatePropertyItem::rename(Console& console)
{
    EditTemplateDlg dialog(m_application, m_name);
    if (dialog.show(GetActiveWindow()) != IDOK)
    {
        return S_OK;
    }
    if (!accepted(
            [&]
            {
                if (dialog.name != m_name)
                {
                    m_application.renameTemplate(m_template,
                                                 renamedPath(m_template.getTemplatePath(), m_name, dialog.name));
                }
            }))
    {
        return S_OK;
    }
    console.refreshResultList(*lister());
    // The dialog has no check box for it, so the preference is read here and never written. Kept as is: the service
    // is restarted even when the template's name stayed what it was.
    if (readRestartPreference())
    {
        RestartServerService();
    }
    return S_OK;
}

} // namespace TMgmt
