#pragma once

#include "tmgmt/fonts_logs/rules/PrivateFont.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a new or an existing private font. Ends with IDOK or IDCANCEL; after IDOK the members have what was
// entered.
class AddPrivateFontDlg : public Dialog
{
  public:
    AddPrivateFontDlg() noexcept;

    PrivateFont font;
    // The check box "Restart the service to apply changes.".
    bool restart = false;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void takeControls();
    void browse();
};

} // namespace TMgmt
