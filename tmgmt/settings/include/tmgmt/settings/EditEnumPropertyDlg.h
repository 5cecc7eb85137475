#pragma once

#include <string>

#include "tmgmt/settings/rules/PropertyOption.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a setting with up to four options; further ones are never offered. Ends with IDOK, IDCANCEL or
// IDC_PROPERTY_RESET.
class EditEnumPropertyDlg : public Dialog
{
  public:
    EditEnumPropertyDlg(PropertyOptions options, std::wstring displayName, std::wstring value, std::wstring description,
                        bool restart);

    PropertyOptions options;
    std::wstring displayName;
    // After IDOK: the chosen option's value; what it was when nothing was chosen.
    std::wstring value;
    std::wstring description;
    // After IDOK and IDC_PROPERTY_RESET: what the check box said.
    bool restart;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;
};

} // namespace TMgmt
