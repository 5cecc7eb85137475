#include "kit/DatabaseLock.h"
#include "kit/FileDialog.h"
#include "kit/ImportSpy.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class AddTemplate : public TemplatesTest
{
  protected:
    static constexpr wchar_t letters[] = L"Server Templates\\Letters";
    static constexpr wchar_t command[] = L"&Add Template...";
    static constexpr wchar_t caption[] = L"Add Template";
    static constexpr int path = 274;
    static constexpr int browse = 275;
    static constexpr int templateId = 285;

    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Letters");
    }

    void add(std::size_t number = 0) { view(number).runNodeCommand(letters, command); }
    void add(const std::wstring& file)
    {
        enter(caption, path, file);
        add();
    }
};

TEST_F(AddTemplate, copiesTheFileAndListsIt)
{
    addTemplate(L"Letters", L"reminder.kvd");
    const std::wstring file = makeFile(L"письмо.xsl", "<xsl/>");
    openAt(letters);
    add(file);
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"reminder.kvd", L"письмо.xsl"));
    EXPECT_EQ("<xsl/>", ServerFiles::read(serverTemplates(L"Letters\\письмо.xsl")));
    EXPECT_TRUE(std::filesystem::exists(file)) << "the file itself stays";
    EXPECT_THAT(names(), ElementsAre(L"Users", L"reminder.kvd", L"письмо.xsl"));
}

TEST_F(AddTemplate, takesAFileThatIsChosen)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    robot.dialog(caption, [](ModalWindow& dialog) { dialog.press(browse); });
    robot.dialog(
        FileDialog::caption,
        [&](ModalWindow& dialog)
        {
            FileDialog chooser(dialog);
            EXPECT_THAT(chooser.filters(), ElementsAre(L"Template files (*.kvd, *.xsl, *.xslt)", L"All Files (*.*)"));
            EXPECT_EQ(0, chooser.chosenFilter());
            chooser.choose(file);
        },
        Owner::dialog);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"Letters:letter.kvd", dialog.text(templateId));
                     dialog.press(IDOK);
                 });
    add();
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd"));
}

TEST_F(AddTemplate, startsWithNothing)
{
    openAt(letters);
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"", dialog.text(path));
                     EXPECT_EQ(L"", dialog.text(templateId));
                     dialog.press(IDCANCEL);
                 });
    add();
}

TEST_F(AddTemplate, cancelledAddsNothing)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    robot.dialog(caption,
                 [&](ModalWindow& dialog)
                 {
                     dialog.type(path, file);
                     dialog.press(IDCANCEL);
                 });
    add();
    EXPECT_THAT(storedTemplates(L"Letters"), IsEmpty());
}

TEST_F(AddTemplate, worksOnANodeThatIsNotShown)
{
    openAt(L"Users");
    add(makeFile(L"letter.kvd"));
    EXPECT_EQ(L"Users", view().selected());
    view().select(letters);
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd"));
}

TEST_F(AddTemplate, isSeenInEveryView)
{
    openAt(letters, 2);
    enter(caption, path, makeFile(L"letter.kvd"));
    add(1);
    EXPECT_THAT(names(0), ElementsAre(L"Users", L"letter.kvd"));
    EXPECT_THAT(names(1), ElementsAre(L"Users", L"letter.kvd"));
}

TEST_F(AddTemplate, keepsTheEngineAndTheUsersThatOthersStoredMeanwhile)
{
    openAt(letters);
    grant(L"Letters", L"anna");
    add(makeFile(L"letter.kvd"));
    EXPECT_THAT(storedUsers(L"Letters"), ElementsAre(L"Guest", L"anna"));
}

TEST_F(AddTemplate, doesNotRestartTheService)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openAt(letters);
    add(makeFile(L"letter.kvd"));
    EXPECT_EQ(before, Service::processId());
}

TEST_F(AddTemplate, ofAFileThatVanishesAfterTheDialogIsReported)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    ImportSpy<"EndDialog", decltype(EndDialog)> end(
        [&](HWND dialog, INT_PTR result)
        {
            std::filesystem::remove(file);
            return end.callThrough(dialog, result);
        });
    enter(caption, path, file);
    robot.messageThat(
        [&](const MessageBoxSeen& seen)
        {
            EXPECT_EQ(L"Error Occured", seen.caption);
            EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), seen.icon);
            EXPECT_EQ(Owner::none, seen.owner);
            EXPECT_THAT(seen.text, HasSubstr(file));
        });
    add();
    EXPECT_THAT(storedTemplates(L"Letters"), IsEmpty());
    EXPECT_THAT(names(), ElementsAre(L"Users"));
}

TEST_F(AddTemplate, ofAFileInUseIsReported)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    const ServerFiles::Lock lock(file);
    enter(caption, path, file);
    robot.messageThat([&](const MessageBoxSeen& seen) { EXPECT_THAT(seen.text, HasSubstr(file)); });
    add();
    EXPECT_THAT(storedTemplates(L"Letters"), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
}

TEST_F(AddTemplate, ofTheSameNameTwiceIsReported)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    add(file);
    enter(caption, path, file);
    error(L"The name \"letter.kvd\" is taken by another template. Please choose another name.");
    add();
    EXPECT_THAT(storedTemplates(L"Letters"), ElementsAre(L"letter.kvd"));
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd"));
}

TEST_F(AddTemplate, toAnApplicationThatAnotherConsoleRemovedIsReported)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    removeApplication(L"Letters");
    enter(caption, path, file);
    error(L"The application \"Letters\" has been removed by another program. Please refresh the list.");
    add();
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters")));
}

TEST_F(AddTemplate, toALockedDatabaseIsReported)
{
    const std::wstring file = makeFile(L"letter.kvd");
    openAt(letters);
    {
        const DatabaseLock lock(database());
        enter(caption, path, file);
        error(databaseInUse());
        add();
    }
    EXPECT_THAT(storedTemplates(L"Letters"), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Letters\\letter.kvd")));
}

} // namespace
} // namespace Acceptance
