#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class AddUser : public UsersTest
{
};

TEST_F(AddUser, storesTheUserAndShowsIt)
{
    openNode();
    enterNew(L"jean.dupont");
    view().runNodeCommand(node, add);
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest", L"No"), ElementsAre(L"jean.dupont", L"Yes")));
    EXPECT_THAT(storedNames(), ElementsAre(L"jean.dupont"));
    EXPECT_TRUE(storedUser(L"jean.dupont").isEnabled());
    EXPECT_TRUE(storedUser(L"jean.dupont").getPassword().startsWith(L"$pbkdf2-sha256$"));
}

TEST_F(AddUser, storesOneThatIsNotEnabled)
{
    openNode();
    inAddUser(
        [](ModalWindow& dialog)
        {
            EXPECT_TRUE(dialog.checked(UserDialog::enabled));
            dialog.type(UserDialog::username, L"alice");
            dialog.type(UserDialog::password, L"secret");
            dialog.type(UserDialog::newConfirmation, L"secret");
            dialog.setChecked(UserDialog::enabled, false);
            dialog.press(IDOK);
        });
    view().runNodeCommand(node, add);
    EXPECT_THAT(view().row(L"alice"), ElementsAre(L"alice", L"No"));
    EXPECT_FALSE(storedUser(L"alice").isEnabled());
}

TEST_F(AddUser, cancelledStoresNothing)
{
    openNode();
    inAddUser(
        [](ModalWindow& dialog)
        {
            dialog.type(UserDialog::username, L"alice");
            dialog.type(UserDialog::password, L"secret");
            dialog.type(UserDialog::newConfirmation, L"secret");
            dialog.press(IDCANCEL);
        });
    view().runNodeCommand(node, add);
    EXPECT_THAT(storedNames(), IsEmpty());
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

TEST_F(AddUser, thatAnotherConsoleHasAddedMeanwhileKeepsTheDialogOpen)
{
    openNode();
    inAddUser(
        [](ModalWindow& dialog)
        {
            addUsers({L"Alice"});
            dialog.type(UserDialog::username, L"alice");
            dialog.press(IDOK);
        });
    robot.message({.text = L"Username already exits.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    inAddUser([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    view().runNodeCommand(node, add);
    EXPECT_THAT(storedNames(), ElementsAre(L"Alice"));
}

TEST_F(AddUser, isSeenInEveryView)
{
    openNode(2);
    enterNew(L"alice");
    view(0).runNodeCommand(node, add);
    EXPECT_THAT(names(0), ElementsAre(L"Guest", L"alice"));
    EXPECT_THAT(names(1), ElementsAre(L"Guest", L"alice"));
}

TEST_F(AddUser, worksWhereAnotherNodeIsShown)
{
    open();
    view().select(L"Log");
    enterNew(L"alice");
    view().runNodeCommand(node, add);
    EXPECT_EQ(L"Log", view().selected());
    EXPECT_THAT(storedNames(), ElementsAre(L"alice"));
}

TEST_F(AddUser, ofTheNameOfADeletedOneIsAnotherAccount)
{
    addUsers({L"alice"});
    const int former = storedUser(L"alice").getId();
    openNode();
    view().pressDelete(L"alice");
    enterNew(L"alice");
    view().runNodeCommand(node, add);
    EXPECT_NE(former, storedUser(L"alice").getId());
}

} // namespace
} // namespace Acceptance
