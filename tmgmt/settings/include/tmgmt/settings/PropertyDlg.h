#pragma once

#include <string>

#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// What the editors of all settings have in common: the setting's name and description, the check box "Restart the
// service to apply changes." and the button that resets the setting to its default. Ends with IDOK, IDCANCEL or
// IDC_PROPERTY_RESET.
class PropertyDlg : public Dialog
{
  public:
    std::wstring displayName;
    std::wstring description;
    // After IDOK and IDC_PROPERTY_RESET: what the check box said.
    bool restart;

  protected:
    PropertyDlg(UINT resource, std::wstring displayName, std::wstring description, bool restart);

    // Fills the common controls.
    void showProperty();
    // Takes the check box and ends with that result.
    void finish(INT_PTR result);

    void onCommand(int control, int notification) override;
};

} // namespace TMgmt
