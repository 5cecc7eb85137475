#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

class DeleteTemplate : public TemplatesTest
{
  protected:
    static constexpr wchar_t letters[] = L"Server Templates\\Letters";

    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Letters");
        addTemplate(L"Letters", L"letter.kvd");
        addTemplate(L"Letters", L"reminder.kvd");
    }
};

// Proves: TemplatePropertyItem on Delete.
TEST_F(DeleteTemplate, asksNothingAndSelectsTheApplication)
{
    openAt(letters);
    view().view().selectRows({view().indexOf(L"letter.kvd")});
    recorder.forgetCalls();
    view().view().runVerb(MMC_VERB_DELETE);
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"reminder.kvd"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"reminder.kvd"));
    EXPECT_FALSE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_THAT(view().view().selectedRows(), testing::IsEmpty());
    EXPECT_EQ(letters, view().selected());
}

TEST_F(DeleteTemplate, takesTheRowAwayAndTellsTheViewsBeforeItSelects)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(letters);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    ASSERT_EQ(2u, bare->console.results.rows.size());
    const auto row = bare->object(bare->console.results.rows.front().lParam);
    bare->console.updates.clear();
    EXPECT_EQ(S_OK, bare->component->Notify(row.Get(), MMCN_DELETE, 0, 0));
    ASSERT_EQ(1u, bare->console.results.rows.size());
    EXPECT_EQ(L"reminder.kvd", bare->cell(bare->console.results.rows.front().lParam, 0));
    ASSERT_EQ(1u, bare->console.updates.size());
    EXPECT_EQ(guid(L"{27967510-9844-4A62-86F9-C98CBEBB952B}"), bare->console.updates.front().nodeType);
    EXPECT_THAT(bare->console.selections, ElementsAre(node.ID));
}

TEST_F(DeleteTemplate, isSeenInEveryView)
{
    openAt(letters, 2);
    view(1).pressDelete(L"letter.kvd");
    EXPECT_THAT(names(0), ElementsAre(L"Users", L"reminder.kvd"));
    EXPECT_THAT(names(1), ElementsAre(L"Users", L"reminder.kvd"));
}

TEST_F(DeleteTemplate, takesOneWhoseFileIsGone)
{
    openAt(letters);
    std::filesystem::remove(serverTemplates(L"Letters\\letter.kvd"));
    view().pressDelete(L"letter.kvd");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"reminder.kvd"));
}

TEST_F(DeleteTemplate, thatIsGoneAlreadyListsTheRest)
{
    openAt(letters);
    Tessaro::ServerTemplates templates;
    templates.getAt(0).deleteTemplate(templates.getAt(0).getAt(0));
    view().pressDelete(L"letter.kvd");
    EXPECT_THAT(names(), ElementsAre(L"Users", L"reminder.kvd"));
}

TEST_F(DeleteTemplate, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(letters);
    view().pressDelete(L"letter.kvd");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(DeleteTemplate, fromAnApplicationThatAnotherConsoleRemovedIsReported)
{
    openAt(letters);
    removeApplication(L"Letters");
    error(L"The application \"Letters\" has been removed by another program. Please refresh the list.");
    view().pressDelete(L"letter.kvd");
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd", L"reminder.kvd"));
}

TEST_F(DeleteTemplate, inALockedDatabaseIsReportedAndChangesNothing)
{
    openAt(letters);
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().pressDelete(L"letter.kvd");
    }
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd", L"reminder.kvd"));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
}

TEST_F(DeleteTemplate, whoseFileIsInUseIsReportedAndChangesNothing)
{
    openAt(letters);
    {
        const ServerFiles::Lock lock(serverTemplates(L"Letters\\letter.kvd"));
        robot.messageThat([](const MessageBoxSeen& seen)
                          { EXPECT_THAT(seen.text, HasSubstr(L"The template \"letter.kvd\" cannot be deleted")); });
        view().pressDelete(L"letter.kvd");
    }
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd", L"reminder.kvd"));
}

} // namespace
} // namespace Acceptance
