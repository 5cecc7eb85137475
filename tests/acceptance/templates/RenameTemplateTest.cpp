#include "frame/BareSnapIn.h"
#include "frame/ModuleResource.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class RenameTemplate : public TemplatesTest
{
  protected:
    static constexpr wchar_t letters[] = L"Server Templates\\Letters";
    static constexpr wchar_t command[] = L"&Edit Template...";
    static constexpr wchar_t caption[] = L"Template";
    static constexpr int templateId = 232;
    static constexpr int name = 284;

    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Letters");
        addTemplate(L"Letters", L"letter.kvd");
        addTemplate(L"Letters", L"reminder.kvd");
    }

    void rename(const std::wstring& former, const std::wstring& wanted)
    {
        enter(caption, name, wanted);
        view().runCommand(former, command);
    }

    // Confirms the dialog with that name while the service runs. Whether the service was restarted.
    bool restartsFor(const std::wstring& wanted)
    {
        Service::startOnFreePort();
        const DWORD before = Service::processId();
        openAt(letters);
        rename(L"letter.kvd", wanted);
        EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
        return Service::processId() != before;
    }
};

TEST_F(RenameTemplate, renamesTheFileAndShowsIt)
{
    openAt(letters);
    rename(L"letter.kvd", L"письмо.kvd");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"письмо.kvd", L"reminder.kvd"));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
    EXPECT_EQ("content", ServerFiles::read(serverTemplates(L"Letters\\письмо.kvd")));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"письмо.kvd", L"reminder.kvd"));
}

// Proves: TemplatePropertyItem on a double-click.
TEST_F(RenameTemplate, opensByADoubleClickToo)
{
    openAt(letters);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"letter.kvd", dialog.text(name));
                     EXPECT_EQ(L"Letters:letter.kvd", dialog.text(templateId));
                     dialog.type(name, L"mail.kvd");
                     dialog.press(IDOK);
                 });
    view().doubleClick(L"letter.kvd");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"mail.kvd", L"reminder.kvd"));
}

TEST_F(RenameTemplate, changesThePictureWithTheEnding)
{
    openAt(letters);
    const int template_ = view().view().rowImage(view().indexOf(L"letter.kvd"));
    rename(L"letter.kvd", L"letter.xsl");
    EXPECT_NE(template_, view().view().rowImage(view().indexOf(L"letter.xsl")));
    EXPECT_EQ(template_, view().view().rowImage(view().indexOf(L"reminder.kvd")));
}

TEST_F(RenameTemplate, isSeenInEveryView)
{
    openAt(letters, 2);
    enter(caption, name, L"mail.kvd");
    view(1).runCommand(L"letter.kvd", command);
    EXPECT_THAT(names(0), ElementsAre(L"Users", L"mail.kvd", L"reminder.kvd"));
    EXPECT_THAT(names(1), ElementsAre(L"Users", L"mail.kvd", L"reminder.kvd"));
}

// Every occurrence of the old name goes from the path, here the one in the application's own name too. The library
// takes the last component of what is left as the name.
TEST_F(RenameTemplate, whoseNameIsInItsPathTwiceIsRenamedWhereItIs)
{
    addTemplate(L"Letters", L"Letter");
    openAt(letters);
    rename(L"Letter", L"mail");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd", L"mail"));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Letters\\mail")));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"s")));
}

TEST_F(RenameTemplate, restartsTheServiceWhereThePreferenceSaysSo)
{
    Registry::preferRestart(true);
    EXPECT_TRUE(restartsFor(L"mail.kvd"));
    EXPECT_EQ((Registry::Value{REG_SZ, L"true"}), Registry::restartPreference());
}

TEST_F(RenameTemplate, restartsTheServiceWithoutAPreferenceAndWritesNone)
{
    Registry::reset();
    EXPECT_TRUE(restartsFor(L"mail.kvd"));
    EXPECT_FALSE(Registry::restartPreference());
}

TEST_F(RenameTemplate, leavesTheServiceAloneWhereThePreferenceSaysFalse)
{
    EXPECT_FALSE(restartsFor(L"mail.kvd"));
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference());
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"mail.kvd", L"reminder.kvd"));
}

// Proves: the service is restarted even when the template's name stayed what it was.
TEST_F(RenameTemplate, restartsTheServiceEvenForTheSameName)
{
    Registry::preferRestart(true);
    EXPECT_TRUE(restartsFor(L"letter.kvd"));
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd"));
}

TEST_F(RenameTemplate, cancelledChangesAndRestartsNothing)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(letters);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     dialog.type(name, L"mail.kvd");
                     dialog.press(IDCANCEL);
                 });
    view().doubleClick(L"letter.kvd");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd"));
    EXPECT_EQ(before, Service::processId());
}

TEST_F(RenameTemplate, toTheNameOfAFileInTheFolderIsRefusedByTheDialog)
{
    ServerFiles::write(serverTemplates(L"Letters\\by hand.kvd"), "");
    openAt(letters);
    for (const wchar_t* const taken : {L"reminder.kvd", L"by hand.kvd"})
    {
        enter(caption, name, taken);
        robot.message({.text = L"File already exists.",
                       .caption = L"Validation Error",
                       .icon = MB_ICONERROR,
                       .owner = Owner::dialog});
        cancel(caption);
        view().doubleClick(L"letter.kvd");
    }
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd"));
}

TEST_F(RenameTemplate, toANameThatWindowsCannotHaveIsReportedAndRestartsNothing)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(letters);
    const std::wstring longName(300, L'x');
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"name.", L"The name \"name.\" ends in a dot or a blank, which Windows does not allow."},
        {longName, L"The name \"" + longName + L"\" is too long (255 characters at most)."}};
    for (const auto& [refused, sentence] : cases)
    {
        enter(caption, name, refused);
        error(sentence);
        view().doubleClick(L"letter.kvd");
    }
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd", L"reminder.kvd"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd", L"reminder.kvd"));
    EXPECT_EQ(before, Service::processId());
}

// They stand for the application's folder and the one above it, which are there.
TEST_F(RenameTemplate, toOneOrTwoDotsIsRefusedByTheDialog)
{
    openAt(letters);
    for (const wchar_t* const dots : {L".", L".."})
    {
        enter(caption, name, dots);
        robot.message({.text = L"File already exists.",
                       .caption = L"Validation Error",
                       .icon = MB_ICONERROR,
                       .owner = Owner::dialog});
        cancel(caption);
        view().doubleClick(L"letter.kvd");
    }
}

TEST_F(RenameTemplate, inALockedDatabaseIsReportedAndChangesNothing)
{
    openAt(letters);
    {
        const DatabaseLock lock(database());
        enter(caption, name, L"mail.kvd");
        error(databaseInUse());
        view().doubleClick(L"letter.kvd");
    }
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd", L"reminder.kvd"));
    EXPECT_TRUE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
}

TEST_F(RenameTemplate, thatAnotherConsoleRemovedIsReported)
{
    openAt(letters);
    Tessaro::ServerTemplates templates;
    templates.getAt(0).deleteTemplate(templates.getAt(0).getAt(0));
    enter(caption, name, L"mail.kvd");
    error(L"The template \"letter.kvd\" has been removed by another program. Please refresh the list.");
    view().doubleClick(L"letter.kvd");
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"reminder.kvd"));
}

TEST_F(RenameTemplate, toTheSameNameAsksTheLibraryForNothing)
{
    openAt(letters);
    Tessaro::ServerTemplates templates;
    templates.getAt(0).deleteTemplate(templates.getAt(0).getAt(0));
    enter(caption, name, L"letter.kvd");
    view().doubleClick(L"letter.kvd");
    EXPECT_THAT(names(), ElementsAre(L"Users", L"reminder.kvd")) << "what is listed is read anew all the same";
}

// The menu "&Rename Template..." belongs to no node.
// Proves: no node has the menu that renames a template, and no node carries out its command.
TEST_F(RenameTemplate, hasACommandOfItsOwnThatNobodyRuns)
{
    EXPECT_EQ((std::pair<std::wstring, std::wstring>(L"Rename Template POPUP MENU", L"&Rename Template...")),
              ModuleResource().menuTexts(277, 1066));
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(letters);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const auto row = bare->object(bare->console.results.inserted.front().lParam);
    EXPECT_EQ(S_OK, bare->menus()->Command(1066, row.Get()));
    EXPECT_EQ(S_OK, snapIn.menus()->Command(1066, snapIn.object(node.lParam).Get()));
}

} // namespace
} // namespace Acceptance
