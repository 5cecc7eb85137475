#pragma once

#include "brimlow/tessaro/User.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for a new user account. Ends with IDOK or IDCANCEL.
class AddUserDlg : public Dialog
{
  public:
    AddUserDlg();

    // After IDOK: what shall be stored; it is valid, and has its password. After IDCANCEL: to be discarded.
    Tessaro::User user;

  protected:
    bool onInit() override;
    void onOk() override;

  private:
    // Takes the contents of the controls, or tells what is wrong with them; null when nothing is.
    const wchar_t* store();
    bool isTaken(const Core::String& username) const;
};

} // namespace TMgmt
