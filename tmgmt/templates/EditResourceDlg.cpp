#include "tmgmt/templates/EditResourceDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

EditResourceDlg::EditResourceDlg(const Tessaro::ServerApplication& application, const Core::String& name_)
    : Dialog(IDD_RESOURCE_FOLDER), name(name_), m_application(application), m_formerName(name_)
{
}

bool EditResourceDlg::onInit()
{
    setText(IDC_RESOURCE_FOLDER_NAME, name.str());
    return true;
}

void EditResourceDlg::onOk()
{
    name = text(IDC_RESOURCE_FOLDER_NAME);
    if (const wchar_t* const fault =
            faultOfName(name, m_formerName, m_application.getApplicationPath(), folderAlreadyExists))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
