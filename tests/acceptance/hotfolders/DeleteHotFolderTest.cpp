#include "hotfolders/HotFoldersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class DeleteHotFolder : public HotFoldersTest
{
  protected:
    void SetUp() override
    {
        HotFoldersTest::SetUp();
        storeAll({L"Bills", L"Invoices", L"Letters", L"Orders"});
    }
};

// Proves: HotFolderItem on Delete.
TEST_F(DeleteHotFolder, asksNothingAndListsTheRest)
{
    openNode();
    ASSERT_TRUE(view().canDelete(L"Invoices"));
    view().pressDelete(L"Invoices");
    EXPECT_THAT(storedNames(), ElementsAre(L"Bills", L"Letters", L"Orders"));
    EXPECT_THAT(names(), ElementsAre(L"Bills", L"Letters", L"Orders"));
    EXPECT_TRUE(std::filesystem::exists(folder(L"Invoices"))) << "the folder itself stays";
}

TEST_F(DeleteHotFolder, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openNode();
    view().pressDelete(L"Invoices");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(DeleteHotFolder, takesAllThatAreSelectedAndListsTheRestOnce)
{
    openNode();
    view().view().selectRows({0, 2, 3});
    ASSERT_TRUE(view().view().verb(MMC_VERB_DELETE).enabled);
    recorder.forgetCalls();
    view().view().runVerb(MMC_VERB_DELETE);
    EXPECT_THAT(storedNames(), ElementsAre(L"Invoices"));
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
    EXPECT_EQ(1u, recorder.calls(L"IResultData::DeleteAllRsltItems").size());
}

TEST_F(DeleteHotFolder, isSeenInEveryView)
{
    openNode(2);
    view(1).pressDelete(L"Invoices");
    EXPECT_THAT(names(0), ElementsAre(L"Bills", L"Letters", L"Orders"));
    EXPECT_THAT(names(1), ElementsAre(L"Bills", L"Letters", L"Orders"));
}

TEST_F(DeleteHotFolder, thatIsGoneAlreadyListsTheRest)
{
    openNode();
    HotFolders::HotFolderCollection().removeFolder(stored().at(1));
    view().pressDelete(L"Invoices");
    EXPECT_THAT(names(), ElementsAre(L"Bills", L"Letters", L"Orders"));
}

TEST_F(DeleteHotFolder, thatWasChangedElsewhereTakesItAllTheSame)
{
    openNode();
    HotFolders::HotFolder changed = stored().at(1);
    changed.setFolder(folder(L"Elsewhere"));
    HotFolders::HotFolderCollection().updateFolder(changed);
    view().pressDelete(L"Invoices");
    EXPECT_THAT(storedNames(), ElementsAre(L"Bills", L"Letters", L"Orders"));
}

} // namespace
} // namespace Acceptance
