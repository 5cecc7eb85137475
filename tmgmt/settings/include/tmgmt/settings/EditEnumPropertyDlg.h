#pragma once

#include <string>

#include "tmgmt/settings/PropertyDlg.h"
#include "tmgmt/settings/rules/PropertyOption.h"

namespace TMgmt
{

// The editor of a setting with up to four options; further ones are never offered. Ends with IDOK, IDCANCEL or
// IDC_PROPERTY_RESET.
class EditEnumPropertyDlg : public PropertyDlg
{
  public:
    EditEnumPropertyDlg(PropertyOptions options, std::wstring displayName, std::wstring value, std::wstring description,
                        bool restart);

    PropertyOptions options;
    // After IDOK: the chosen option's value; what it was when nothing was chosen.
    std::wstring value;

  protected:
    bool onInit() override;
    void onOk() override;
};

} // namespace TMgmt
