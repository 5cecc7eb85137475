#include "tmgmt/settings/EditBoolPropertyDlg.h"

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

EditBoolPropertyDlg::EditBoolPropertyDlg(std::wstring displayName_, bool value_, std::wstring description_,
                                         bool restart_)
    : Dialog(IDD_EDIT_BOOL_PROPERTY),
      displayName(std::move(displayName_)),
      value(value_),
      description(std::move(description_)),
      restart(restart_)
{
}

bool EditBoolPropertyDlg::onInit()
{
    setFocus(IDOK);
    setChecked(value ? IDC_PROPERTY_TRUE : IDC_PROPERTY_FALSE, true);
    setChecked(IDC_RESTART_SERVICE, restart);
    setText(IDC_PROPERTY_NAME, displayName);
    setText(IDC_PROPERTY_DESCRIPTION, description);
    return false;
}

void EditBoolPropertyDlg::onCommand(int control, int notification)
{
    if (control == IDC_PROPERTY_RESET)
    {
        restart = isChecked(IDC_RESTART_SERVICE);
        end(IDC_PROPERTY_RESET);
        return;
    }
    Dialog::onCommand(control, notification);
}

void EditBoolPropertyDlg::onOk()
{
    value = isChecked(IDC_PROPERTY_TRUE);
    restart = isChecked(IDC_RESTART_SERVICE);
    end(IDOK);
}

} // namespace TMgmt
