#include "hotfolders/HotFoldersTest.h"
#include "kit/DatabaseLock.h"
#include "kit/ImportSpy.h"

#include <gmock/gmock.h>

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
        const DatabaseLock lock(database());
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
        const DatabaseLock lock(database());
        typePattern(L"*.xml");
        error(inUse());
        view().doubleClick(L"Invoices");
    }
    EXPECT_EQ(Core::String(L"*.*"), stored().at(0).getFileMatchPattern());
}

// Proves: a deletion that the library refuses is reported under the product's name.
TEST_F(HotFolderFaults, aDeletionThatIsRefusedIsReportedByTheConsolesEdge)
{
    openNode();
    {
        const DatabaseLock lock(database());
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
