#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using Tessaro::XsltEngine;
using testing::ElementsAre;

class EditApplication : public TemplatesTest
{
  protected:
    static constexpr wchar_t command[] = L"&Edit Application...";
    static constexpr wchar_t caption[] = L"Edit Application";
    static constexpr int engine = 210;
    static constexpr int name = 233;

    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplications({L"Letters", L"Bills"});
        addTemplate(L"Letters", L"letter.kvd");
        addFolder(L"Letters", L"Images");
    }

    void edit(const std::wstring& application) { view().runNodeCommand(nodeOf(application), command); }

    // The robot's next step: the dialog comes up, the engine is chosen, and the button pressed.
    void chooseEngine(int index, int button = IDOK)
    {
        robot.dialog(caption,
                     [=](ModalWindow& dialog)
                     {
                         dialog.choose(engine, index);
                         dialog.press(button);
                     });
    }
};

TEST_F(EditApplication, renamesItsFolderWithAllThatIsInIt)
{
    openAt(nodeOf(L"Letters"));
    enter(caption, name, L"Письма");
    edit(L"Letters");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Письма", L"Bills"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters")));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Письма\\letter.kvd")));
    EXPECT_TRUE(std::filesystem::is_directory(serverTemplates(L"Письма\\Images")));
    EXPECT_THAT(view().children(branch), ElementsAre(L"Письма", L"Bills"));
    EXPECT_THAT(view().children(nodeOf(L"Письма")), ElementsAre(L"Users", L"Images"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"Images", L"letter.kvd"));
}

TEST_F(EditApplication, showsNameAndEngine)
{
    Tessaro::ServerTemplates templates;
    templates.getAt(0).setParser(XsltEngine::DotNet);
    templates.updateApplication(templates.getAt(0));
    openAt(branch);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"Letters", dialog.text(name));
                     EXPECT_EQ(L".NET 2.0 XSLT Parser", dialog.text(engine));
                     dialog.press(IDCANCEL);
                 });
    edit(L"Letters");
}

TEST_F(EditApplication, selectsTheNode)
{
    openAt(branch);
    recorder.forgetCalls();
    enter(caption, name, L"Mail");
    edit(L"Letters");
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(nodeOf(L"Mail"), view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Users", L"Images", L"letter.kvd"));
}

TEST_F(EditApplication, thatKeepsItsNameStoresTheEngineWithoutAWord)
{
    openAt(nodeOf(L"Letters"));
    chooseEngine(1);
    edit(L"Letters");
    EXPECT_EQ(XsltEngine::DotNet, stored(L"Letters").getParser());
    EXPECT_EQ(XsltEngine::Msxml, stored(L"Bills").getParser());
    chooseEngine(0);
    edit(L"Letters");
    EXPECT_EQ(XsltEngine::Msxml, stored(L"Letters").getParser());
}

TEST_F(EditApplication, storesTheEngineWithANewNameToo)
{
    openAt(branch);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.type(name, L"Mail");
                     dialog.choose(engine, 1);
                     dialog.press(IDOK);
                 });
    edit(L"Letters");
    EXPECT_EQ(XsltEngine::DotNet, stored(L"Mail").getParser());
}

TEST_F(EditApplication, cancelledChangesNothing)
{
    openAt(branch);
    chooseEngine(1, IDCANCEL);
    edit(L"Letters");
    EXPECT_EQ(XsltEngine::Msxml, stored(L"Letters").getParser());
    EXPECT_EQ(branch, view().selected());
}

// Every occurrence of the old name goes from the path, here the one in "ServerTemplates" too. The library takes the
// last component of what is left as the name.
TEST_F(EditApplication, whoseNameIsInItsPathTwiceIsRenamedWhereItIs)
{
    addApplication(L"Templates");
    addTemplate(L"Templates", L"letter.kvd");
    openAt(nodeOf(L"Templates"));
    enter(caption, name, L"Mail");
    edit(L"Templates");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Bills", L"Mail"));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Mail\\letter.kvd")));
    EXPECT_FALSE(std::filesystem::exists(ServerFiles::folder() / L"Server"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd"));
    view().view().runVerb(MMC_VERB_DELETE);
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Bills"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Mail")));
}

TEST_F(EditApplication, toTheNameOfAnotherIsRefusedByTheDialog)
{
    openAt(branch);
    enter(caption, name, L"Bills");
    robot.message({.text = L"Folder already exists.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(caption);
    edit(L"Letters");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Bills"));
}

TEST_F(EditApplication, leavesTheNodesBelowItWithItsNewFolder)
{
    openAt(nodeOf(L"Letters\\Images"));
    enter(caption, name, L"Mail");
    edit(L"Letters");
    std::filesystem::create_directories(serverTemplates(L"Mail\\Logos"));
    enter(L"Folder", 280, L"Logos");
    robot.message({.text = L"Folder already exists.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(L"Folder");
    view().runNodeCommand(nodeOf(L"Mail\\Images"), L"&Rename Folder...");
}

TEST_F(EditApplication, isSeenInEveryView)
{
    openAt(branch, 2);
    view(1).select(nodeOf(L"Letters"));
    enter(caption, name, L"Mail");
    view(0).runNodeCommand(nodeOf(L"Letters"), command);
    EXPECT_EQ(nodeOf(L"Mail"), view(1).selected());
    EXPECT_THAT(names(1), ElementsAre(L"Users", L"Images", L"letter.kvd"));
}

TEST_F(EditApplication, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(branch);
    enter(caption, name, L"Mail");
    edit(L"Letters");
    EXPECT_EQ(before, Service::processId());
}

TEST_F(EditApplication, thatAnotherConsoleRemovedIsReported)
{
    openAt(branch);
    removeApplication(L"Bills");
    for (const wchar_t* const newName : {L"Mail", L"Bills"})
    {
        enter(caption, name, newName);
        error(L"The application \"Bills\" has been removed by another program. Please refresh the list.");
        edit(L"Bills");
        EXPECT_THAT(view().children(branch), ElementsAre(L"Letters", L"Bills")) << "the tree is left as it was";
    }
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters"));
}

TEST_F(EditApplication, thatIsRefusedLeavesNameAndEngine)
{
    openAt(branch);
    {
        const DatabaseLock lock(database());
        robot.dialog(caption,
                     [](ModalWindow& dialog)
                     {
                         dialog.type(name, L"Mail");
                         dialog.choose(engine, 1);
                         dialog.press(IDOK);
                     });
        error(databaseInUse());
        edit(L"Letters");
    }
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"Letters", dialog.text(name));
                     EXPECT_EQ(L"MSXML", dialog.text(engine));
                     dialog.press(IDCANCEL);
                 });
    edit(L"Letters");
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
}

TEST_F(EditApplication, toANameThatWindowsCannotHaveIsReportedByTheLibrary)
{
    openAt(branch);
    enter(caption, name, L"name.");
    error(L"The name \"name.\" ends in a dot or a blank, which Windows does not allow.");
    edit(L"Letters");
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Bills"));
}

} // namespace
} // namespace Acceptance
