#include "tmgmt/users/UserDlg.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/reportRefusal.h"

namespace TMgmt
{

UserDlg::UserDlg(UINT resource, Tessaro::User user_) : Dialog(resource), user(std::move(user_)) {}

void UserDlg::onOk()
{
    const wchar_t* fault = nullptr;
    if (!accepted([&] { fault = store(); }))
    {
        return;
    }
    if (fault)
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

bool UserDlg::isTaken(const Core::String& username, TakenRule rule) const
{
    const Tessaro::UserCollection users;
    bool taken = false;
    for (int index = 0; index < users.getCount() && !taken; ++index)
    {
        taken = rule(username, user, users.getAt(index));
    }
    return taken;
}

} // namespace TMgmt
