#pragma once

#include <string>

#include "tmgmt/settings/PropertyDlg.h"

namespace TMgmt
{

// The editor of a setting that is true or false. Ends with IDOK, IDCANCEL or IDC_PROPERTY_RESET.
class EditBoolPropertyDlg : public PropertyDlg
{
  public:
    EditBoolPropertyDlg(std::wstring displayName, bool value, std::wstring description, bool restart);

    // After IDOK: what was chosen.
    bool value;

  protected:
    bool onInit() override;
    void onOk() override;
};

} // namespace TMgmt
