#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class AddApplication : public TemplatesTest
{
  protected:
    static constexpr wchar_t command[] = L"&Add Application...";
    static constexpr wchar_t caption[] = L"Edit Application";
    static constexpr int engine = 210;
    static constexpr int name = 233;

    void add() { view().runNodeCommand(branch, command); }
};

TEST_F(AddApplication, makesItsFolderAndListsIt)
{
    addApplications({L"Letters"});
    openAt(branch);
    enter(caption, name, L"Счета");
    add();
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters", L"Счета"));
    EXPECT_TRUE(std::filesystem::is_directory(serverTemplates(L"Счета")));
    EXPECT_THAT(view().children(branch), ElementsAre(L"Letters", L"Счета"));
    EXPECT_THAT(names(), ElementsAre(L"Letters", L"Счета"));
}

TEST_F(AddApplication, startsWithAnEmptyNameAndMsxml)
{
    openAt(branch);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"", dialog.text(name));
                     EXPECT_EQ(L"MSXML", dialog.text(engine));
                     dialog.press(IDCANCEL);
                 });
    add();
}

TEST_F(AddApplication, storesTheChosenEngineAndGrantsTheGuestAccess)
{
    openAt(branch);
    enter(caption, name, L"Letters");
    add();
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.type(name, L"Bills");
                     dialog.choose(engine, 1);
                     dialog.press(IDOK);
                 });
    add();
    EXPECT_EQ(Tessaro::XsltEngine::Msxml, stored(L"Letters").getParser());
    EXPECT_EQ(Tessaro::XsltEngine::DotNet, stored(L"Bills").getParser());
    EXPECT_THAT(storedUsers(L"Letters"), ElementsAre(L"Guest"));
    EXPECT_THAT(storedUsers(L"Bills"), ElementsAre(L"Guest"));
}

TEST_F(AddApplication, cancelledStoresNothing)
{
    openAt(branch);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.type(name, L"Letters");
                     dialog.press(IDCANCEL);
                 });
    add();
    EXPECT_THAT(storedApplications(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters")));
}

TEST_F(AddApplication, namedLikeAFolderOnTheDiskIsRefusedWhateverTheListHas)
{
    std::filesystem::create_directories(serverTemplates(L"Letters"));
    openAt(branch);
    enter(caption, name, L"Letters");
    robot.message({.text = L"Folder already exists.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(caption);
    add();
    EXPECT_THAT(storedApplications(), IsEmpty());
}

TEST_F(AddApplication, givesTheBranchAnExpandMarkBeforeItIsExpanded)
{
    open();
    const auto node = view().node(branch);
    EXPECT_FALSE(host().tree().hasExpandMark(node));
    enter(caption, name, L"Letters");
    add();
    EXPECT_FALSE(host().tree().wasExpanded(node));
    EXPECT_TRUE(host().tree().hasExpandMark(node));
    EXPECT_THAT(view().children(branch), ElementsAre(L"Letters"));
}

// Proves: TemplatesCollection on the console's refresh.
TEST_F(AddApplication, readsAllApplicationsAnew)
{
    addApplications({L"Letters"});
    openAt(branch);
    addApplication(L"Bills");
    removeApplication(L"Letters");
    enter(caption, name, L"Orders");
    add();
    EXPECT_THAT(view().children(branch), ElementsAre(L"Bills", L"Orders"));
}

TEST_F(AddApplication, isSeenInEveryView)
{
    addApplications({L"Letters"});
    openAt(branch, 3);
    view(2).select(nodeOf(L"Letters"));
    enter(caption, name, L"Bills");
    view(0).runNodeCommand(branch, command);
    EXPECT_THAT(names(0), ElementsAre(L"Letters", L"Bills"));
    EXPECT_THAT(names(1), ElementsAre(L"Letters", L"Bills"));
    // The node that it showed is another one now.
    EXPECT_EQ(branch, view(2).selected());
    EXPECT_THAT(names(2), ElementsAre(L"Letters", L"Bills"));
}

TEST_F(AddApplication, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(branch);
    enter(caption, name, L"Letters");
    add();
    EXPECT_EQ(before, Service::processId());
}

struct RefusedName
{
    std::wstring name;
    std::wstring sentence;
};

TEST_F(AddApplication, withANameThatWindowsCannotHaveIsReportedByTheLibrary)
{
    const std::wstring endsWrong = L"ends in a dot or a blank, which Windows does not allow.";
    const std::wstring longName(300, L'x');
    const RefusedName cases[] = {
        {L".", L"The name \".\" " + endsWrong},
        {L"..", L"The name \"..\" " + endsWrong},
        {L"name.", L"The name \"name.\" " + endsWrong},
        {L"CON", L"The name \"CON\" is reserved by Windows for a device."},
        {longName, L"The name \"" + longName + L"\" is too long (255 characters at most)."},
    };
    open();
    for (const RefusedName& refused : cases)
    {
        // The folder of all applications has "." and "..", as far as the dialog is concerned.
        std::filesystem::remove_all(serverTemplates());
        enter(caption, name, refused.name);
        error(refused.sentence);
        add();
    }
    EXPECT_THAT(storedApplications(), IsEmpty());
    EXPECT_THAT(view().children(branch), IsEmpty());
}

TEST_F(AddApplication, toALockedDatabaseIsReportedAndListsNothing)
{
    addApplications({L"Letters"});
    openAt(branch);
    {
        const DatabaseLock lock(database());
        enter(caption, name, L"Bills");
        error(databaseInUse());
        add();
    }
    EXPECT_THAT(storedApplications(), ElementsAre(L"Letters"));
    EXPECT_THAT(view().children(branch), ElementsAre(L"Letters"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Bills")));
}

} // namespace
} // namespace Acceptance
