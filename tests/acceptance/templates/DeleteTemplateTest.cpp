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
    Registry::setRestartPreference({REG_SZ, L"true"});
    startService();
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
