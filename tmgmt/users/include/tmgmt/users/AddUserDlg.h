#pragma once

#include "tmgmt/users/UserDlg.h"

namespace TMgmt
{

// Asks for a new user account. After IDOK, user is what shall be stored; it is valid, and has its password.
class AddUserDlg : public UserDlg
{
  public:
    AddUserDlg();

  protected:
    bool onInit() override;
    const wchar_t* store() override;
};

} // namespace TMgmt
