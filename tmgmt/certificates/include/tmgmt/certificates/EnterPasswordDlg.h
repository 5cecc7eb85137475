#pragma once

#include <optional>

#include "tmgmt/ui/Dialog.h"
#include "tmgmt/ui/SecretText.h"

namespace TMgmt
{

// Asks for the password of a file, twice. Ends with IDOK or IDCANCEL.
class EnterPasswordDlg : public Dialog
{
  public:
    EnterPasswordDlg() noexcept;

    // What was entered, after IDOK.
    std::optional<SecretText> password;

  protected:
    bool onInit() override { return true; }
    void onOk() override;
};

} // namespace TMgmt
