#include "tmgmt/settings/EditPropertyDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/rules/PropertyFormat.h"
#include "tmgmt/settings/rules/PropertyRules.h"

namespace TMgmt
{

EditPropertyDlg::EditPropertyDlg(PropertyKind kind_, std::wstring displayName_, std::wstring value_,
                                 std::wstring description_, bool restart_)
    : Dialog(IDD_EDIT_PROPERTY),
      kind(kind_),
      displayName(std::move(displayName_)),
      value(std::move(value_)),
      description(std::move(description_)),
      restart(restart_)
{
}

bool EditPropertyDlg::onInit()
{
    setText(IDC_PROPERTY_UNIT, unitLabel(kind));
    setText(IDC_PROPERTY_NAME, displayName);
    setText(IDC_PROPERTY_VALUE, value);
    setFocus(IDC_PROPERTY_VALUE);
    setText(IDC_PROPERTY_DESCRIPTION, description);
    setChecked(IDC_RESTART_SERVICE, restart);
    return false;
}

void EditPropertyDlg::onCommand(int control, int notification)
{
    if (control == IDC_PROPERTY_RESET)
    {
        restart = isChecked(IDC_RESTART_SERVICE);
        end(IDC_PROPERTY_RESET);
        return;
    }
    Dialog::onCommand(control, notification);
}

void EditPropertyDlg::onOk()
{
    // The member takes every attempt, refused ones too, so a second refusal in a row gives back the text of the first:
    // kept as is.
    const std::wstring former = value;
    value = text(IDC_PROPERTY_VALUE);
    const auto checked = checkProperty(kind, value);
    if (const auto* const refusal = std::get_if<PropertyRefusal>(&checked))
    {
        if (refusal->style == PropertyRefusal::Style::keep)
        {
            complain(refusal->message, MB_ICONEXCLAMATION);
            return;
        }
        complain(refusal->message, MB_ICONERROR);
        setText(IDC_PROPERTY_VALUE, former);
        setFocus(IDC_PROPERTY_VALUE);
        return;
    }
    value = std::get<std::wstring>(checked);
    restart = isChecked(IDC_RESTART_SERVICE);
    end(IDOK);
}

} // namespace TMgmt
