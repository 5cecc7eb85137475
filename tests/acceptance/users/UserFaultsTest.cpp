#include "kit/DatabaseLock.h"
#include "kit/ImportSpy.h"
#include "users/UsersTest.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// A database that cannot be used as it should be.
class UserFaults : public UsersTest
{
  protected:
    void SetUp() override
    {
        UsersTest::SetUp();
        addUsers({L"alice"});
    }

    // What is read comes, but nothing can be written.
    struct FullDisk : ImportSpy<"WriteFile", decltype(WriteFile)>
    {
        FullDisk()
            : ImportSpy(
                  [](HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED)
                  {
                      if (written)
                      {
                          *written = 0;
                      }
                      SetLastError(ERROR_DISK_FULL);
                      return FALSE;
                  })
        {
        }
    };

    static std::wstring diskFull()
    {
        return L"The database \"" + database().wstring() + L"\" cannot be changed: the disk is full.";
    }

    // Another program lets nobody change the access lists.
    static void protectAccessLists()
    {
        sqlite3* opened = nullptr;
        ASSERT_EQ(SQLITE_OK, sqlite3_open16(database().c_str(), &opened));
        for (const char* change : {"INSERT", "UPDATE", "DELETE"})
        {
            const std::string name = std::string("protect_") + change;
            const std::string trigger = "CREATE TRIGGER " + name + " BEFORE " + change +
                                        " ON access BEGIN SELECT RAISE(ABORT, 'protected'); END";
            EXPECT_EQ(SQLITE_OK, sqlite3_exec(opened, trigger.c_str(), nullptr, nullptr, nullptr));
        }
        sqlite3_close(opened);
    }

    static std::wstring isProtected()
    {
        return L"The database \"" + database().wstring() + L"\" cannot be used: protected.";
    }
};

// Proves: the caption is spelled "Error Occured".
TEST_F(UserFaults, aLockedDatabaseIsReportedAndListedAsEmpty)
{
    open();
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().select(node);
        EXPECT_THAT(view().rows(), IsEmpty());
        EXPECT_EQ(2u, view().columns().size());
    }
    view().select(L"Log");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
}

TEST_F(UserFaults, aDamagedDatabaseIsReportedAndLeftAsItIs)
{
    open();
    const std::string damaged(4096, 'x');
    ServerFiles::write(database(), damaged);
    const std::wstring sentence = L"The database \"" + database().wstring() +
                                  L"\" is damaged (file is not a database). Please restore it from a backup.";
    error(sentence);
    view().select(node);
    EXPECT_THAT(view().rows(), IsEmpty());
    enterNew(L"bob1");
    error(sentence);
    inAddUser([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    view().runNodeCommand(node, add);
    EXPECT_EQ(damaged, ServerFiles::read(database()));
}

TEST_F(UserFaults, anAdditionThatIsRefusedIsReportedAndListsNothingNew)
{
    openNode();
    {
        const FullDisk full;
        enterNew(L"bob1");
        error(diskFull());
        view().runNodeCommand(node, add);
    }
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
    EXPECT_THAT(storedNames(), ElementsAre(L"alice"));
}

// Proves: the row of a user shows what was entered even when it cannot be stored.
TEST_F(UserFaults, anEditThatIsRefusedStaysInTheRowUntilTheListIsReadAnew)
{
    openNode();
    {
        const FullDisk full;
        rename(L"zoe.z");
        error(diskFull());
        view().doubleClick(L"alice");
    }
    EXPECT_THAT(storedNames(), ElementsAre(L"alice"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"zoe.z")) << "the row keeps what was entered";
    view().select(L"Log");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
}

TEST_F(UserFaults, anEditWhoseAccessListsCannotBeWrittenKeepsTheDialogOpenAndTheAccountAsItIs)
{
    setAccess(L"Invoices", {L"alice"});
    openNode();
    {
        const FullDisk full;
        rename(L"zoe.z");
        error(diskFull());
        inEditUser(
            [](ModalWindow& dialog)
            {
                EXPECT_EQ(L"zoe.z", dialog.text(UserDialog::username));
                dialog.press(IDCANCEL);
            });
        view().doubleClick(L"alice");
    }
    EXPECT_THAT(storedNames(), ElementsAre(L"alice"));
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"alice"));
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
}

// Proves: the row of the guest shows what was chosen even when it cannot be stored.
TEST_F(UserFaults, aSwitchOfTheGuestThatIsRefusedStaysInTheRowUntilTheListIsReadAnew)
{
    openNode();
    {
        const FullDisk full;
        switchTo(true, IDOK);
        error(diskFull());
        view().doubleClick(L"Guest");
    }
    EXPECT_FALSE(guestEnabled());
    EXPECT_EQ(L"Yes", view().cell(L"Guest", L"Enabled")) << "the row keeps what was chosen";
    view().select(L"Log");
    view().select(node);
    EXPECT_EQ(L"No", view().cell(L"Guest", L"Enabled"));
}

TEST_F(UserFaults, aDeletionThatIsRefusedIsReportedAndChangesNothing)
{
    setAccess(L"Invoices", {L"alice"});
    openNode();
    {
        const FullDisk full;
        error(diskFull());
        view().pressDelete(L"alice");
    }
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
    EXPECT_THAT(storedNames(), ElementsAre(L"alice"));
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"alice"));
}

TEST_F(UserFaults, aDeletionWhoseAccessListsAreRefusedTakesTheAccountAllTheSame)
{
    setAccess(L"Invoices", {L"alice"});
    protectAccessLists();
    openNode();
    error(isProtected());
    view().pressDelete(L"alice");
    EXPECT_THAT(storedNames(), IsEmpty());
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"alice"));
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

} // namespace
} // namespace Acceptance
