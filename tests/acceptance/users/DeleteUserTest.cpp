#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class DeleteUser : public UsersTest
{
  protected:
    void SetUp() override
    {
        UsersTest::SetUp();
        addUsers({L"alice", L"bob1", L"carol"});
    }
};

// Proves: UserPropertyItem on Delete.
TEST_F(DeleteUser, asksNothingAndListsTheRest)
{
    openNode();
    recorder.forgetCalls();
    view().pressDelete(L"bob1");
    EXPECT_THAT(storedNames(), ElementsAre(L"alice", L"carol"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice", L"carol"));
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(node, view().selected());
}

TEST_F(DeleteUser, takesTheNameOutOfEveryAccessList)
{
    addUsers({L"BOB1"});
    setAccess(L"Invoices", {L"Guest", L"bob1", L"alice", L"bob1"});
    setAccess(L"Letters", {L"BOB1", L"alice"});
    setAccess(L"Orders", {L"bob1"});
    openNode();
    view().pressDelete(L"bob1");
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"Guest", L"alice"));
    EXPECT_THAT(storedUsers(L"Letters"), ElementsAre(L"BOB1", L"alice"));
    EXPECT_THAT(storedUsers(L"Orders"), IsEmpty());
}

TEST_F(DeleteUser, isSeenInEveryView)
{
    openNode(2);
    view(1).pressDelete(L"bob1");
    EXPECT_THAT(names(0), ElementsAre(L"Guest", L"alice", L"carol"));
    EXPECT_THAT(names(1), ElementsAre(L"Guest", L"alice", L"carol"));
}

TEST_F(DeleteUser, thatIsGoneAlreadyListsTheRest)
{
    openNode();
    Tessaro::UserCollection().deleteUser(storedUser(L"bob1"));
    view().pressDelete(L"bob1");
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice", L"carol"));
}

TEST_F(DeleteUser, takesTheVeryAccountWhateverItsNameIsNow)
{
    openNode();
    Tessaro::User renamed = storedUser(L"bob1");
    renamed.setUsername(L"zoe.z");
    Tessaro::UserCollection().updateUser(renamed);
    addUsers({L"bob1"});
    view().pressDelete(L"bob1");
    EXPECT_THAT(storedNames(), ElementsAre(L"alice", L"carol", L"bob1"));
}

} // namespace
} // namespace Acceptance
