#include "tmgmt/templates/AddTemplateUserDlg.h"

#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/access.h"
#include "tmgmt/ui/dropDownList.h"

namespace TMgmt
{
namespace
{

std::vector<Core::String> accountNames()
{
    const Tessaro::UserCollection accounts;
    std::vector<Core::String> names;
    names.reserve(static_cast<std::size_t>(accounts.getCount()));
    for (int index = 0; index < accounts.getCount(); ++index)
    {
        names.push_back(accounts.getAt(index).getUsername());
    }
    return names;
}

} // namespace

AddTemplateUserDlg::AddTemplateUserDlg(const Tessaro::ServerApplication& application_)
    : Dialog(IDD_GRANT_ACCESS), application(application_)
{
}

bool AddTemplateUserDlg::onInit()
{
    const HWND list = item(IDC_ACCESS_USERNAME);
    for (const Core::String& name : namesToOffer(accountNames(), application.getUsers()))
    {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    SendMessageW(list, CB_SETCURSEL, 0, 0);
    sizeOpenList(list);
    return true;
}

void AddTemplateUserDlg::onOk()
{
    const Core::String username = text(IDC_ACCESS_USERNAME);
    if (username.empty())
    {
        complain(usernameIsEmpty, MB_ICONERROR);
        return;
    }
    application.addUser(username);
    end(IDOK);
}

} // namespace TMgmt
