#include "users/UsersTest.h"

namespace Acceptance
{

void UsersTest::addUsers(const Texts& names)
{
    for (const auto& name : names)
    {
        addUser(name);
    }
}

void UsersTest::setAccess(const std::wstring& application, const Texts& users)
{
    addApplication(application);
    Tessaro::ServerTemplates templates;
    Tessaro::ServerApplication& added = templates.getAt(templates.getCount() - 1);
    added.setUsers({users.begin(), users.end()});
    templates.updateApplication(added);
}

UsersTest::Texts UsersTest::storedNames()
{
    const Tessaro::UserCollection users;
    Texts names;
    for (int index = 0; index < users.getCount(); ++index)
    {
        names.push_back(users.getAt(index).getUsername().str());
    }
    return names;
}

void UsersTest::inAddUser(Robot::Action action, std::source_location where)
{
    robot.dialog(L"Add User", std::move(action), Owner::frame, where);
}

void UsersTest::inEditUser(Robot::Action action, std::source_location where)
{
    robot.dialog(L"Edit User", std::move(action), Owner::frame, where);
}

void UsersTest::enterNew(const std::wstring& name, std::source_location where)
{
    inAddUser(
        [name](ModalWindow& dialog)
        {
            dialog.type(UserDialog::username, name);
            dialog.type(UserDialog::password, L"secret");
            dialog.type(UserDialog::newConfirmation, L"secret");
            dialog.press(IDOK);
        },
        where);
}

void UsersTest::rename(const std::wstring& name, std::source_location where)
{
    inEditUser(
        [name](ModalWindow& dialog)
        {
            dialog.type(UserDialog::username, name);
            dialog.press(IDOK);
        },
        where);
}

void UsersTest::switchTo(bool enabled, int button, std::source_location where)
{
    inEditUser(
        [=](ModalWindow& dialog)
        {
            dialog.setChecked(UserDialog::enabled, enabled);
            dialog.press(button);
        },
        where);
}

} // namespace Acceptance
