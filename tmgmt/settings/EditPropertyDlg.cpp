#include "tmgmt/settings/EditPropertyDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/rules/PropertyFormat.h"
#include "tmgmt/settings/rules/PropertyRules.h"

namespace TMgmt
{

EditPropertyDlg::EditPropertyDlg(PropertyKind kind_, std::wstring displayName_, std::wstring value_,
                                 std::wstring description_, bool restart_)
    : PropertyDlg(IDD_EDIT_PROPERTY, std::move(displayName_), std::move(description_), restart_),
      kind(kind_),
      value(std::move(value_))
{
}

bool EditPropertyDlg::onInit()
{
    showProperty();
    setText(IDC_PROPERTY_UNIT, unitLabel(kind));
    setText(IDC_PROPERTY_VALUE, value);
    setFocus(IDC_PROPERTY_VALUE);
    return false;
}

void EditPropertyDlg::onOk()
{
    // The member takes every attempt, refused ones too. Kept as is: a second refusal in a row gives back the text of
    // the first.
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
    finish(IDOK);
}

} // namespace TMgmt
