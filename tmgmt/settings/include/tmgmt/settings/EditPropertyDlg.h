#pragma once

#include <string>

#include "tmgmt/settings/rules/PropertyKind.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The free-text editor of one setting. Ends with IDOK, IDCANCEL or IDC_PROPERTY_RESET.
class EditPropertyDlg : public Dialog
{
  public:
    EditPropertyDlg(PropertyKind kind, std::wstring displayName, std::wstring value, std::wstring description,
                    bool restart);

    PropertyKind kind;
    std::wstring displayName;
    // After IDOK: what shall be stored.
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
