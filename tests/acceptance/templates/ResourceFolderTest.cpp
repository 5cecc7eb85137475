#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

constexpr wchar_t caption[] = L"Folder";
constexpr int name = 280;
constexpr wchar_t add[] = L"Add &Folder...";
constexpr wchar_t rename[] = L"&Rename Folder...";

class ResourceFolder : public TemplatesTest
{
  protected:
    // An application with the folders Images, Texts and More; one file in each, named after it.
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Invoices");
        for (const std::wstring folder : {L"Images", L"Texts", L"More"})
        {
            addFolder(L"Invoices", folder);
            addFile(L"Invoices", folder, folder + L".txt");
        }
    }

    static bool isOnDisk(const std::wstring& below) { return std::filesystem::exists(serverTemplates(below)); }

    void renameTo(const std::wstring& path, const std::wstring& newName)
    {
        enter(caption, name, newName);
        view().runNodeCommand(path, rename);
    }

    void pressDelete(const std::wstring& path, std::size_t number = 0)
    {
        view(number).select(path);
        view(number).view().runVerb(MMC_VERB_DELETE);
    }

    // The name is complained about; then the dialog is cancelled.
    void refuse(const std::wstring& newName, const wchar_t* message)
    {
        enter(caption, name, newName);
        robot.message({.text = message, .caption = L"Validation Error", .icon = MB_ICONERROR, .owner = Owner::dialog});
        cancel(caption);
    }
};

TEST_F(ResourceFolder, isMadeOnTheDiskAndShownBehindTheOthers)
{
    open();
    view().select(nodeOf(L"Invoices"));
    enter(caption, name, L"New");
    view().runNodeCommand(nodeOf(L"Invoices"), add);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More", L"New"));
    EXPECT_TRUE(std::filesystem::is_directory(serverTemplates(L"Invoices\\New")));
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Images", L"Texts", L"More", L"New"));
}

TEST_F(ResourceFolder, canBeCalledInLettersWithAccentsOnly)
{
    open();
    enter(caption, name, L"\u00E9\u00E0\u00FC\u00F1\u00F8");
    view().runNodeCommand(nodeOf(L"Invoices"), add);
    EXPECT_THAT(storedFolders(L"Invoices"),
                ElementsAre(L"Images", L"Texts", L"More", L"\u00E9\u00E0\u00FC\u00F1\u00F8"));
}

TEST_F(ResourceFolder, isNotMadeWhereOneIsOnTheDiskThatNobodyLists)
{
    std::filesystem::create_directory(serverTemplates(L"Invoices\\Unlisted"));
    open();
    refuse(L"Unlisted", L"Folder already exists.");
    view().runNodeCommand(nodeOf(L"Invoices"), add);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
}

TEST_F(ResourceFolder, isNotMadeOnCancel)
{
    open();
    cancel(caption);
    view().runNodeCommand(nodeOf(L"Invoices"), add);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
}

TEST_F(ResourceFolder, isNotMadeUnderANameThatWindowsCannotHave)
{
    open();
    const std::wstring tooLong(256, L'n');
    enter(caption, name, tooLong);
    error(L"The name \"" + tooLong + L"\" is too long (255 characters at most).");
    view().runNodeCommand(nodeOf(L"Invoices"), add);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
}

TEST_F(ResourceFolder, startsItsDialogFromItsName)
{
    open();
    robot.dialog(caption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"Images", dialog.text(name));
                     dialog.press(IDCANCEL);
                 });
    view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
}

TEST_F(ResourceFolder, isRenamedWithItsFilesAndItsNodeToo)
{
    openAt(nodeOf(L"Invoices\\Images"));
    renameTo(nodeOf(L"Invoices\\Images"), L"Pictures");
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Pictures", L"Texts", L"More"));
    EXPECT_THAT(storedFiles(L"Invoices", L"Pictures"), ElementsAre(L"Images.txt"));
    EXPECT_TRUE(isOnDisk(L"Invoices\\Pictures\\Images.txt"));
    EXPECT_FALSE(isOnDisk(L"Invoices\\Images"));
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Pictures", L"Texts", L"More"));
    EXPECT_EQ(nodeOf(L"Invoices\\Pictures"), view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Images.txt"));
}

TEST_F(ResourceFolder, tellsTheTreeOfItsNewNameOnce)
{
    openAt(nodeOf(L"Invoices\\Images"));
    EXPECT_TRUE(recorder.calls(L"IConsoleNameSpace::SetItem").empty()) << "showing a folder renames nothing";
    renameTo(nodeOf(L"Invoices\\Images"), L"Pictures");
    EXPECT_EQ(1u, recorder.calls(L"IConsoleNameSpace::SetItem").size());
}

TEST_F(ResourceFolder, isSelectedWhenItWasRenamed)
{
    open();
    view().select(L"Users");
    renameTo(nodeOf(L"Invoices\\Images"), L"Pictures");
    EXPECT_EQ(nodeOf(L"Invoices\\Pictures"), view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Images.txt"));
}

TEST_F(ResourceFolder, isSelectedAndReadAnewWhenItsNameStayedWhatItWas)
{
    open();
    view().select(L"Users");
    const std::string before = ServerFiles::read(database());
    renameTo(nodeOf(L"Invoices\\Images"), L"Images");
    EXPECT_EQ(before, ServerFiles::read(database()));
    EXPECT_EQ(nodeOf(L"Invoices\\Images"), view().selected());
}

TEST_F(ResourceFolder, isRenamedInEveryView)
{
    openAt(nodeOf(L"Invoices\\Images"), 2);
    renameTo(nodeOf(L"Invoices\\Images"), L"Pictures");
    EXPECT_EQ(nodeOf(L"Invoices\\Pictures"), view(1).selected());
    EXPECT_THAT(names(1), ElementsAre(L"Images.txt"));
}

// Every occurrence of the old name is taken out of the path, the application's folder among them. The library takes
// the last component, so that the folder stays where it is.
TEST_F(ResourceFolder, isRenamedInItsPlaceWhenItsNameIsElsewhereInThePathToo)
{
    addApplication(L"Images");
    addFolder(L"Images", L"Images");
    open();
    renameTo(nodeOf(L"Images\\Images"), L"Pictures");
    EXPECT_THAT(storedFolders(L"Images"), ElementsAre(L"Pictures"));
    EXPECT_TRUE(isOnDisk(L"Images\\Pictures"));
    EXPECT_FALSE(isOnDisk(L"Pictures"));
    EXPECT_THAT(storedApplications(), ElementsAre(L"Invoices", L"Images"));
}

TEST_F(ResourceFolder, isNotRenamedToWhatIsOnTheDisk)
{
    open();
    refuse(L"Texts", L"Folder already exists.");
    view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
}

TEST_F(ResourceFolder, looksForTheNameWhereTheApplicationIsNow)
{
    open();
    const auto node = view().node(nodeOf(L"Invoices\\Images"));
    Tessaro::ServerTemplates().renameApplication(stored(L"Invoices"), L"Bills");
    view().view().selectNode(node);
    refuse(L"Texts", L"Folder already exists.");
    view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
}

TEST_F(ResourceFolder, isNotRenamedToWhatWindowsCannotHave)
{
    openAt(nodeOf(L"Invoices\\Images"));
    enter(caption, name, L"name.");
    error(L"The name \"name.\" ends in a dot or a blank, which Windows does not allow.");
    view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
    EXPECT_EQ(nodeOf(L"Invoices\\Images"), view().selected());
}

TEST_F(ResourceFolder, isNotRenamedWhenItIsGoneFromTheDisk)
{
    openAt(nodeOf(L"Invoices\\Images"));
    std::filesystem::remove_all(serverTemplates(L"Invoices\\Images"));
    enter(caption, name, L"Pictures");
    error(L"\"" + serverTemplates(L"Invoices\\Images").wstring() +
          L"\" is missing on the disk. Please put it back, or delete it from the list.");
    view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
    EXPECT_EQ(nodeOf(L"Invoices\\Images"), view().selected());
}

TEST_F(ResourceFolder, isNotRenamedWhileTheDatabaseIsInUse)
{
    openAt(nodeOf(L"Invoices\\Images"));
    {
        const DatabaseLock lock(database());
        enter(caption, name, L"Pictures");
        error(databaseInUse());
        view().runNodeCommand(nodeOf(L"Invoices\\Images"), rename);
    }
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
    EXPECT_TRUE(isOnDisk(L"Invoices\\Images"));
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Images", L"Texts", L"More"));
}

// Proves: TemplateResourcesCollection on Delete.
TEST_F(ResourceFolder, isDeletedWithItsFilesAndWithoutAQuestion)
{
    open();
    pressDelete(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Texts", L"More"));
    EXPECT_FALSE(isOnDisk(L"Invoices\\Images"));
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Texts", L"More"));
    EXPECT_EQ(nodeOf(L"Invoices"), view().selected());
}

TEST_F(ResourceFolder, selectsItsApplicationWhenItIsDeleted)
{
    open();
    view().select(nodeOf(L"Invoices\\Images"));
    recorder.forgetCalls();
    view().view().runVerb(MMC_VERB_DELETE);
    const auto selections = recorder.calls(L"IConsole::SelectScopeItem");
    ASSERT_EQ(1u, selections.size());
    EXPECT_EQ(S_OK, selections.front().result);
}

TEST_F(ResourceFolder, isDeletedFromTheListOfItsApplication)
{
    openAt(nodeOf(L"Invoices"));
    ASSERT_TRUE(view().canDelete(L"Images"));
    view().pressDelete(L"Images");
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Texts", L"More"));
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Texts", L"More"));
    EXPECT_EQ(nodeOf(L"Invoices"), view().selected());
}

TEST_F(ResourceFolder, leavesTheOthersTheirOwnFilesWhenItIsDeleted)
{
    open();
    pressDelete(nodeOf(L"Invoices\\Images"));
    view().select(nodeOf(L"Invoices\\Texts"));
    EXPECT_THAT(names(), ElementsAre(L"Texts.txt"));
    pressDelete(nodeOf(L"Invoices\\Texts"));
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"More"));
    view().select(nodeOf(L"Invoices\\More"));
    EXPECT_THAT(names(), ElementsAre(L"More.txt"));
}

TEST_F(ResourceFolder, isDeletedInEveryView)
{
    openAt(nodeOf(L"Invoices\\Images"), 2);
    pressDelete(nodeOf(L"Invoices\\Images"));
    EXPECT_EQ(nodeOf(L"Invoices"), view(0).selected());
    EXPECT_EQ(nodeOf(L"Invoices"), view(1).selected());
}

TEST_F(ResourceFolder, isDeletedFromTheListThoughItIsGoneFromTheDisk)
{
    open();
    std::filesystem::remove_all(serverTemplates(L"Invoices\\Images"));
    pressDelete(nodeOf(L"Invoices\\Images"));
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Texts", L"More"));
}

TEST_F(ResourceFolder, staysWhileTheDatabaseIsInUse)
{
    openAt(nodeOf(L"Invoices\\Images"));
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().view().runVerb(MMC_VERB_DELETE);
    }
    EXPECT_THAT(storedFolders(L"Invoices"), ElementsAre(L"Images", L"Texts", L"More"));
    EXPECT_TRUE(isOnDisk(L"Invoices\\Images\\Images.txt"));
    EXPECT_EQ(nodeOf(L"Invoices\\Images"), view().selected());
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users", L"Images", L"Texts", L"More"));
}

} // namespace
} // namespace Acceptance
