#include "tmgmt/settings/EditBoolPropertyDlg.h"

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

EditBoolPropertyDlg::EditBoolPropertyDlg(std::wstring displayName_, bool value_, std::wstring description_,
                                         bool restart_)
    : PropertyDlg(IDD_EDIT_BOOL_PROPERTY, std::move(displayName_), std::move(description_), restart_), value(value_)
{
}

bool EditBoolPropertyDlg::onInit()
{
    showProperty();
    setFocus(IDOK);
    setChecked(value ? IDC_PROPERTY_TRUE : IDC_PROPERTY_FALSE, true);
    return false;
}

void EditBoolPropertyDlg::onOk()
{
    value = isChecked(IDC_PROPERTY_TRUE);
    finish(IDOK);
}

} // namespace TMgmt
