#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class DeleteApplication : public TemplatesTest
{
  protected:
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplications({L"Letters", L"Bills", L"Orders"});
        for (const auto& application : storedApplications())
        {
            addTemplate(application, application + L".kvd");
        }
    }
};

// Proves: TemplatesCollectionItem on Delete.
TEST_F(DeleteApplication, asksNothingAndSelectsTheBranch)
{
    addFolder(L"Letters", L"Images");
    openAt(nodeOf(L"Letters"));
    recorder.forgetCalls();
    view().view().runVerb(MMC_VERB_DELETE);
    EXPECT_THAT(storedApplications(), ElementsAre(L"Bills", L"Orders"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters")));
    EXPECT_EQ(1u, recorder.calls(L"IConsoleNameSpace::DeleteItem", L"deleteThis=1").size());
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(branch, view().selected());
    EXPECT_THAT(view().children(branch), ElementsAre(L"Bills", L"Orders"));
    EXPECT_THAT(names(), ElementsAre(L"Bills", L"Orders"));
}

TEST_F(DeleteApplication, worksOnARowOfTheBranchToo)
{
    openAt(branch);
    view().pressDelete(L"Bills");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Orders"));
    EXPECT_THAT(names(), ElementsAre(L"Letters", L"Orders"));
}

TEST_F(DeleteApplication, leavesTheOthersWithWhatIsTheirs)
{
    openAt(nodeOf(L"Letters"));
    view().view().runVerb(MMC_VERB_DELETE);
    view().select(nodeOf(L"Bills"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"Bills.kvd"));
    view().select(nodeOf(L"Orders"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"Orders.kvd"));
}

TEST_F(DeleteApplication, takesTheExpandMarkWithTheLastOne)
{
    openAt(branch);
    for (const auto& application : storedApplications())
    {
        view().pressDelete(application);
    }
    EXPECT_THAT(view().children(branch), IsEmpty());
    EXPECT_FALSE(host().tree().hasExpandMark(view().node(branch)));
}

TEST_F(DeleteApplication, leadsAViewThatShowsItToTheBranch)
{
    openAt(nodeOf(L"Bills"), 2);
    view(0).select(nodeOf(L"Letters"));
    view(1).view().runVerb(MMC_VERB_DELETE);
    EXPECT_EQ(branch, view(1).selected());
    EXPECT_THAT(names(1), ElementsAre(L"Letters", L"Orders"));
    EXPECT_EQ(branch, view(0).selected()) << "its node is another one now";
}

TEST_F(DeleteApplication, thatIsGoneAlreadyListsTheRest)
{
    openAt(branch);
    removeApplication(L"Bills");
    view().pressDelete(L"Bills");
    EXPECT_THAT(names(), ElementsAre(L"Letters", L"Orders"));
}

TEST_F(DeleteApplication, whoseFolderIsGoneTakesItFromTheList)
{
    openAt(branch);
    std::filesystem::remove_all(serverTemplates(L"Bills"));
    view().pressDelete(L"Bills");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Orders"));
    EXPECT_THAT(names(), ElementsAre(L"Letters", L"Orders"));
}

TEST_F(DeleteApplication, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(branch);
    view().pressDelete(L"Bills");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(DeleteApplication, thatIsRefusedIsReportedAndStays)
{
    openAt(nodeOf(L"Bills"));
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().view().runVerb(MMC_VERB_DELETE);
    }
    EXPECT_EQ(nodeOf(L"Bills"), view().selected());
    EXPECT_THAT(view().children(branch), ElementsAre(L"Letters", L"Bills", L"Orders"));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Bills\\Bills.kvd")));
}

} // namespace
} // namespace Acceptance
