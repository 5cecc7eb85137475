#include "hotfolders/HotFoldersTest.h"
#include "kit/ImportSpy.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

// A database that cannot be used as it should be.
class HotFolderFaults : public HotFoldersTest
{
  protected:
    void SetUp() override
    {
        HotFoldersTest::SetUp();
        storeAll({L"Invoices"});
    }

    // Another program is in the middle of a change.
    class Lock
    {
      public:
        Lock()
        {
            if (sqlite3_open16(database().c_str(), &m_database) != SQLITE_OK ||
                sqlite3_exec(m_database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
            {
                throw std::runtime_error("the database cannot be locked");
            }
        }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
        ~Lock() { sqlite3_close(m_database); }

      private:
        sqlite3* m_database = nullptr;
    };

    static std::wstring inUse()
    {
        return L"The database \"" + database().wstring() + L"\" is in use by another program. Please try again.";
    }

    void typePattern(const std::wstring& pattern)
    {
        editor(
            [=](ModalWindow& dialog)
            {
                dialog.type(HotFolderEditor::pattern, pattern);
                dialog.press(IDOK);
            });
    }
};

TEST_F(HotFolderFaults, aLockedDatabaseIsReportedAndListedAsEmpty)
{
    open();
    {
        const Lock lock;
        error(inUse());
        view().select(node);
        EXPECT_TRUE(view().rows().empty());
        EXPECT_EQ(4u, view().columns().size());
    }
    view().view().runVerb(MMC_VERB_REFRESH);
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
}

TEST_F(HotFolderFaults, anEditOfALockedDatabaseIsReported)
{
    openNode();
    {
        const Lock lock;
        typePattern(L"*.xml");
        error(inUse());
        view().doubleClick(L"Invoices");
    }
    EXPECT_EQ(Core::String(L"*.*"), stored().at(0).getFileMatchPattern());
}

TEST_F(HotFolderFaults, aDeletionThatIsRefusedIsReportedByTheConsolesEdge)
{
    openNode();
    {
        const Lock lock;
        robot.message({.text = inUse(), .caption = L"KV Tessaro 2010", .icon = MB_ICONERROR});
        view().pressDelete(L"Invoices");
    }
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
    EXPECT_THAT(storedNames(), ElementsAre(L"Invoices"));
}

TEST_F(HotFolderFaults, aDamagedDatabaseIsReportedAndLeftAsItIs)
{
    const std::string damaged(4096, 'x');
    ServerFiles::write(database(), damaged);
    const std::wstring sentence = L"The database \"" + database().wstring() +
                                  L"\" is damaged (file is not a database). Please restore it from a backup.";
    open();
    error(sentence);
    view().select(node);
    EXPECT_TRUE(view().rows().empty());
    enter(folder(L"Orders"), folder(L"Printed"));
    error(sentence);
    view().runNodeCommand(node, add);
    EXPECT_EQ(damaged, ServerFiles::read(database()));
}

TEST_F(HotFolderFaults, aFullDiskIsReportedAndChangesNothing)
{
    openNode();
    {
        ImportSpy<"WriteFile", decltype(WriteFile)> full(
            [](HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED)
            {
                if (written)
                {
                    *written = 0;
                }
                SetLastError(ERROR_DISK_FULL);
                return FALSE;
            });
        typePattern(L"*.xml");
        error(L"The database \"" + database().wstring() + L"\" cannot be changed: the disk is full.");
        view().doubleClick(L"Invoices");
        EXPECT_LT(0, full.calls());
    }
    EXPECT_EQ(Core::String(L"*.*"), stored().at(0).getFileMatchPattern());
    view().view().runVerb(MMC_VERB_REFRESH);
    view().select(L"Users");
    view().select(node);
    EXPECT_EQ(L"*.*", view().cell(L"Invoices", L"Pattern"));
}

} // namespace
} // namespace Acceptance
