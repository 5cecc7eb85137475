#include "tmgmt/templates/EditFileDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"

namespace TMgmt
{

EditFileDlg::EditFileDlg(const Core::String& name_, const Core::String& folder)
    : Dialog(IDD_RENAME_RESOURCE_FILE), name(name_), m_formerName(name_), m_folder(folder)
{
}

bool EditFileDlg::onInit()
{
    setText(IDC_RESOURCE_FILE_NAME, name.str());
    return true;
}

void EditFileDlg::onOk()
{
    name = text(IDC_RESOURCE_FILE_NAME);
    if (const wchar_t* const fault = faultOfName(name, m_formerName, m_folder, fileAlreadyExists))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
