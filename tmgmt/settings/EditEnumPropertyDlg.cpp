#include "tmgmt/settings/EditEnumPropertyDlg.h"

#include <algorithm>

#include "tmgmt/resources/ids.h"

namespace TMgmt
{
namespace
{

constexpr int buttonCount = IDC_PROPERTY_OPTION_LAST - IDC_PROPERTY_OPTION_FIRST + 1;

} // namespace

EditEnumPropertyDlg::EditEnumPropertyDlg(PropertyOptions options_, std::wstring displayName_, std::wstring value_,
                                         std::wstring description_, bool restart_)
    : PropertyDlg(IDD_EDIT_ENUM_PROPERTY, std::move(displayName_), std::move(description_), restart_),
      options(std::move(options_)),
      value(std::move(value_))
{
}

bool EditEnumPropertyDlg::onInit()
{
    showProperty();
    const int offered = std::min(buttonCount, static_cast<int>(options.size()));
    for (int i = 0; i < buttonCount; ++i)
    {
        // A radio button takes the focus, here and whenever the dialog becomes active again, as a click on it.
        SendMessageW(item(IDC_PROPERTY_OPTION_FIRST + i), BM_SETDONTCLICK, TRUE, 0);
        if (i < offered)
        {
            setText(IDC_PROPERTY_OPTION_FIRST + i, options[static_cast<std::size_t>(i)].label);
        }
        else
        {
            ShowWindow(item(IDC_PROPERTY_OPTION_FIRST + i), SW_HIDE);
        }
    }
    for (int i = 0; i < offered; ++i)
    {
        if (options[static_cast<std::size_t>(i)].value == value)
        {
            setChecked(IDC_PROPERTY_OPTION_FIRST + i, true);
            break;
        }
    }
    // Kept as is: the last button gets the focus whether it is visible or not.
    setFocus(IDC_PROPERTY_OPTION_LAST);
    return false;
}

void EditEnumPropertyDlg::onOk()
{
    for (int i = 0; i < buttonCount && i < static_cast<int>(options.size()); ++i)
    {
        if (isChecked(IDC_PROPERTY_OPTION_FIRST + i))
        {
            value = options[static_cast<std::size_t>(i)].value;
            break;
        }
    }
    finish(IDOK);
}

} // namespace TMgmt
