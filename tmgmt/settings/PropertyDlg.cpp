#include "tmgmt/settings/PropertyDlg.h"

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

PropertyDlg::PropertyDlg(UINT resource, std::wstring displayName_, std::wstring description_, bool restart_)
    : Dialog(resource), displayName(std::move(displayName_)), description(std::move(description_)), restart(restart_)
{
}

void PropertyDlg::showProperty()
{
    setText(IDC_PROPERTY_NAME, displayName);
    setText(IDC_PROPERTY_DESCRIPTION, description);
    setChecked(IDC_RESTART_SERVICE, restart);
}

void PropertyDlg::finish(INT_PTR result)
{
    restart = isChecked(IDC_RESTART_SERVICE);
    end(result);
}

void PropertyDlg::onCommand(int control, int notification)
{
    if (control == IDC_PROPERTY_RESET)
    {
        finish(IDC_PROPERTY_RESET);
        return;
    }
    Dialog::onCommand(control, notification);
}

} // namespace TMgmt
