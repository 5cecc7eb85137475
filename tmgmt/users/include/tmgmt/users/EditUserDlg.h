#pragma once

#include "brimlow/tessaro/User.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a user account, or the switch of the guest account. Ends with IDOK or IDCANCEL.
class EditUserDlg : public Dialog
{
  public:
    // Edits the account.
    explicit EditUserDlg(Tessaro::User user);
    // Only switches the guest account.
    explicit EditUserDlg(bool guestEnabled);

    // After IDOK: what shall be stored; it is valid, and the access lists of the applications have its name already.
    // After IDCANCEL: to be discarded.
    Tessaro::User user;
    // The same for the guest account.
    bool guestEnabled = false;

  protected:
    bool onInit() override;
    void onOk() override;

  private:
    // Takes the contents of the controls, or tells what is wrong with them; null when nothing is.
    const wchar_t* store();
    bool isTaken(const Core::String& username) const;

    bool m_guestMode;
};

} // namespace TMgmt
