#include "tmgmt/templates/EditTemplateDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

EditTemplateDlg::EditTemplateDlg(const Tessaro::ServerApplication& application, const Core::String& name_)
    : Dialog(IDD_EDIT_TEMPLATE),
      name(name_),
      m_applicationPath(application.getApplicationPath()),
      m_applicationName(application.getDisplayName()),
      m_formerName(name_)
{
}

bool EditTemplateDlg::onInit()
{
    setText(IDC_TEMPLATE_NAME, name.str());
    return true;
}

void EditTemplateDlg::onCommand(int control, int notification)
{
    if (control == IDC_TEMPLATE_NAME && notification == EN_CHANGE)
    {
        showTemplateId();
        return;
    }
    Dialog::onCommand(control, notification);
}

void EditTemplateDlg::showTemplateId()
{
    setText(IDC_RENAMED_TEMPLATE_ID, serverTemplateId(m_applicationName, text(IDC_TEMPLATE_NAME)).str());
}

void EditTemplateDlg::onOk()
{
    name = text(IDC_TEMPLATE_NAME);
    if (const wchar_t* const fault =
            faultOfName(name, m_formerName, m_applicationPath, fileAlreadyExists, templateNameHasForbiddenCharacter))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
