#include "tmgmt/templates/AddTemplateDlg.h"

#include <commdlg.h>

#include "brimlow/system/FileSystem.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"
#include "tmgmt/ui/FilePicker.h"

namespace TMgmt
{

AddTemplateDlg::AddTemplateDlg(const Core::String& applicationName)
    : Dialog(IDD_ADD_TEMPLATE), m_applicationName(applicationName)
{
}

bool AddTemplateDlg::onInit()
{
    setText(IDC_TEMPLATE_PATH, file.getTemplatePath().str());
    return true;
}

void AddTemplateDlg::onCommand(int control, int notification)
{
    if (control == IDC_TEMPLATE_BROWSE)
    {
        browse();
    }
    else if (control == IDC_TEMPLATE_PATH && notification == EN_CHANGE)
    {
        showTemplateId();
    }
    else
    {
        Dialog::onCommand(control, notification);
    }
}

void AddTemplateDlg::showTemplateId()
{
    const Core::String name = Core::IO::FileSystem::getFileName(text(IDC_TEMPLATE_PATH));
    setText(IDC_TEMPLATE_ID, serverTemplateId(m_applicationName, name).str());
}

void AddTemplateDlg::browse()
{
    const FilePicker picker{
        .filters = {{L"Template files (*.kvd, *.xsl, *.xslt)", L"*.kvd;*.xsl;*.xslt"}, {L"All Files (*.*)", L"*.*"}},
        .flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST,
        .capacity = 260,
    };
    if (const auto chosen = picker.pick(window(), text(IDC_TEMPLATE_PATH)))
    {
        setText(IDC_TEMPLATE_PATH, *chosen);
    }
}

void AddTemplateDlg::onOk()
{
    file.setTemplatePath(text(IDC_TEMPLATE_PATH));
    if (const wchar_t* const fault = faultOfTemplate(file.getTemplatePath(), file.getDisplayName()))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
