#pragma once

#include <string>

#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a setting that is true or false. Ends with IDOK, IDCANCEL or IDC_PROPERTY_RESET.
class EditBoolPropertyDlg : public Dialog
{
  public:
    EditBoolPropertyDlg(std::wstring displayName, bool value, std::wstring description, bool restart);

    std::wstring displayName;
    // After IDOK: what was chosen.
    bool value;
    std::wstring description;
    // After IDOK and IDC_PROPERTY_RESET: what the check box said.
    bool restart;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;
};

} // namespace TMgmt
