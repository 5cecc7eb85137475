#pragma once

#include "brimlow/tessaro/User.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// What the two dialogs of a user account have in common. They end with IDOK or IDCANCEL.
class UserDlg : public Dialog
{
  public:
    // After IDCANCEL: to be discarded.
    Tessaro::User user;

  protected:
    UserDlg(UINT resource, Tessaro::User user);

    // Reports what store complains of, and what the library refuses it; the dialog stays open then.
    void onOk() override;
    // Takes the contents of the controls, or tells what is wrong with them; null when nothing is.
    virtual const wchar_t* store() = 0;

    // Whether the rule says of a stored account that it has the name already.
    using TakenRule = bool (*)(const Core::String& username, const Tessaro::User& own, const Tessaro::User& existing);
    bool isTaken(const Core::String& username, TakenRule rule) const;
};

} // namespace TMgmt
