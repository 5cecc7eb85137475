#pragma once

#include "tmgmt/users/UserDlg.h"

namespace TMgmt
{

// The editor of a user account, or the switch of the guest account.
class EditUserDlg : public UserDlg
{
  public:
    // Edits the account. After IDOK, user is what shall be stored; it is valid, and the access lists of the
    // applications have its name already.
    explicit EditUserDlg(Tessaro::User user);
    // Only switches the guest account.
    explicit EditUserDlg(bool guestEnabled);

    // After IDOK: whether the guest account shall be enabled, where that was asked.
    bool guestEnabled = false;

  protected:
    bool onInit() override;
    const wchar_t* store() override;

  private:
    bool m_guestMode;
};

} // namespace TMgmt
