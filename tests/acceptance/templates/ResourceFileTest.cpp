#include "brimlow/system/Exception.h"
#include "frame/BareSnapIn.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class ResourceFile : public TemplatesTest
{
  protected:
    static constexpr wchar_t add[] = L"&Add File...";
    static constexpr wchar_t edit[] = L"&Edit File...";
    static constexpr wchar_t addCaption[] = L"Add File";
    static constexpr int path = 281;
    static constexpr wchar_t editCaption[] = L"File";
    static constexpr int name = 233;

    // An application with the folder Images, which has the files a.png, b.png and c.png.
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Invoices");
        addFolder(L"Invoices", L"Images");
        for (const wchar_t* const file : {L"a.png", L"b.png", L"c.png"})
        {
            addFile(L"Invoices", L"Images", file);
        }
    }

    static std::wstring images() { return nodeOf(L"Invoices\\Images"); }
    static std::filesystem::path onDisk(const std::wstring& file)
    {
        return serverTemplates(L"Invoices\\Images\\" + file);
    }
    static Texts storedImages() { return storedFiles(L"Invoices", L"Images"); }

    // What the library says when somebody keeps a file open.
    static std::wstring inUse(const std::wstring& what)
    {
        return Core::IOException(what, ERROR_SHARING_VIOLATION).getMessage().str();
    }

    // Nothing has come of it: the list is what it was, and so is the disk.
    void expectUnchanged()
    {
        EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"b.png", L"c.png"));
        EXPECT_THAT(names(), ElementsAre(L"a.png", L"b.png", L"c.png"));
        for (const wchar_t* const file : {L"a.png", L"b.png", L"c.png"})
        {
            EXPECT_TRUE(std::filesystem::exists(onDisk(file))) << file;
        }
    }
};

using AddResourceFile = ResourceFile;
using EditResourceFile = ResourceFile;
using DeleteResourceFile = ResourceFile;

TEST_F(AddResourceFile, copiesItIntoTheFolderAndListsItBehindTheOthers)
{
    openAt(images());
    const std::wstring logo = makeFile(L"\u00E9t\u00E9 logo.svg", "<svg/>");
    enter(addCaption, path, logo);
    view().runNodeCommand(images(), add);
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"b.png", L"c.png", L"\u00E9t\u00E9 logo.svg"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"b.png", L"c.png", L"\u00E9t\u00E9 logo.svg"));
    EXPECT_EQ("<svg/>", ServerFiles::read(onDisk(L"\u00E9t\u00E9 logo.svg")));
    EXPECT_EQ("<svg/>", ServerFiles::read(logo)) << "the file itself stays";
}

TEST_F(AddResourceFile, startsFromAnEmptyPathAndAddsNothingOnCancel)
{
    openAt(images());
    robot.dialog(addCaption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"", dialog.text(path));
                     dialog.type(path, makeFile(L"logo.png"));
                     dialog.press(IDCANCEL);
                 });
    view().runNodeCommand(images(), add);
    expectUnchanged();
}

TEST_F(AddResourceFile, isRefusedByTheDialogWhereThereIsNoSuchFile)
{
    openAt(images());
    enter(addCaption, path, L"C:\\no logo.png");
    robot.message({.text = L"Input file can not be found.  Make sure the file exists.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(addCaption);
    view().runNodeCommand(images(), add);
    expectUnchanged();
}

TEST_F(AddResourceFile, isRefusedByTheLibraryWhereTheNameIsTaken)
{
    openAt(images());
    enter(addCaption, path, makeFile(L"b.png", "another one"));
    error(L"The name \"b.png\" is taken by another file. Please choose another name.");
    view().runNodeCommand(images(), add);
    expectUnchanged();
    EXPECT_EQ("content", ServerFiles::read(onDisk(L"b.png")));
}

TEST_F(AddResourceFile, isRefusedByTheLibraryWhereTheFolderIsGoneFromTheDisk)
{
    openAt(images());
    std::filesystem::remove_all(serverTemplates(L"Invoices\\Images"));
    enter(addCaption, path, makeFile(L"logo.png"));
    error(L"\"" + serverTemplates(L"Invoices\\Images").wstring() +
          L"\" is missing on the disk. Please put it back, or delete it from the list.");
    view().runNodeCommand(images(), add);
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"b.png", L"c.png"));
}

TEST_F(AddResourceFile, isRefusedByTheLibraryWhereTheFolderWasRemovedElsewhere)
{
    openAt(images());
    stored(L"Invoices").deleteResource(serverTemplates(L"Invoices\\Images").wstring());
    enter(addCaption, path, makeFile(L"logo.png"));
    error(L"The folder \"Images\" has been removed by another program. Please refresh the list.");
    view().runNodeCommand(images(), add);
    EXPECT_THAT(storedFolders(L"Invoices"), testing::IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(onDisk(L"logo.png")));
}

TEST_F(AddResourceFile, isRefusedByTheLibraryWhileTheDatabaseIsInUse)
{
    openAt(images());
    {
        const DatabaseLock lock(database());
        enter(addCaption, path, makeFile(L"logo.png"));
        error(databaseInUse());
        view().runNodeCommand(images(), add);
    }
    expectUnchanged();
    EXPECT_FALSE(std::filesystem::exists(onDisk(L"logo.png")));
}

TEST_F(AddResourceFile, isSeenInEveryView)
{
    openAt(images(), 2);
    enter(addCaption, path, makeFile(L"logo.png"));
    view(1).runNodeCommand(images(), add);
    EXPECT_THAT(names(0), ElementsAre(L"a.png", L"b.png", L"c.png", L"logo.png"));
    EXPECT_THAT(names(1), ElementsAre(L"a.png", L"b.png", L"c.png", L"logo.png"));
}

TEST_F(EditResourceFile, renamesItInTheListAndOnTheDisk)
{
    openAt(images());
    robot.dialog(editCaption,
                 [](ModalWindow& dialog)
                 {
                     EXPECT_EQ(L"b.png", dialog.text(name));
                     dialog.type(name, L"\u8ACB.svg");
                     dialog.press(IDOK);
                 });
    view().runCommand(L"b.png", edit);
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"\u8ACB.svg", L"c.png"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"\u8ACB.svg", L"c.png"));
    EXPECT_TRUE(std::filesystem::exists(onDisk(L"\u8ACB.svg")));
    EXPECT_FALSE(std::filesystem::exists(onDisk(L"b.png")));
}

// Proves: TemplateResourcesItem on a double-click.
TEST_F(EditResourceFile, isDoneByADoubleClickToo)
{
    openAt(images());
    enter(editCaption, name, L"new.png");
    view().doubleClick(L"b.png");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"new.png", L"c.png"));
}

TEST_F(EditResourceFile, callsNothingWhenTheNameStaysWhatItIs)
{
    openAt(images());
    {
        // Whoever wanted something of the library now would hear of it.
        const DatabaseLock lock(database());
        enter(editCaption, name, L"b.png");
        view().doubleClick(L"b.png");
    }
    expectUnchanged();
}

TEST_F(EditResourceFile, changesNothingOnCancel)
{
    openAt(images());
    cancel(editCaption);
    view().doubleClick(L"b.png");
    expectUnchanged();
}

TEST_F(EditResourceFile, isRefusedByTheDialogWhereTheNameIsTakenOnTheDisk)
{
    ServerFiles::write(onDisk(L"unlisted.png"), "x");
    openAt(images());
    enter(editCaption, name, L"unlisted.png");
    robot.message({.text = L"File already exists.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    cancel(editCaption);
    view().doubleClick(L"b.png");
    expectUnchanged();
}

// Every occurrence of the old name is taken out of the path. The library takes the last component, so that the file
// stays where it is.
TEST_F(EditResourceFile, renamesItInItsPlaceWhenItsNameIsElsewhereInThePathToo)
{
    addFile(L"Invoices", L"Images", L"Images");
    openAt(images());
    enter(editCaption, name, L"new.png");
    view().doubleClick(L"Images");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"b.png", L"c.png", L"new.png"));
    EXPECT_TRUE(std::filesystem::exists(onDisk(L"new.png")));
    EXPECT_FALSE(std::filesystem::exists(serverTemplates(L"Invoices\\new.png")));
}

TEST_F(EditResourceFile, isRefusedByTheLibraryForANameThatWindowsCannotHave)
{
    openAt(images());
    enter(editCaption, name, L"new.png ");
    error(L"The name \"new.png \" ends in a dot or a blank, which Windows does not allow.");
    view().doubleClick(L"b.png");
    expectUnchanged();
}

TEST_F(EditResourceFile, isRefusedByTheLibraryWhileAnotherProgramHasItOpen)
{
    openAt(images());
    {
        const ServerFiles::Lock lock(onDisk(L"b.png"));
        enter(editCaption, name, L"new.png");
        error(inUse(L"The file \"b.png\" cannot be renamed"));
        view().doubleClick(L"b.png");
    }
    expectUnchanged();
}

TEST_F(EditResourceFile, isRefusedByTheLibraryWhenItIsGoneFromTheDisk)
{
    openAt(images());
    std::filesystem::remove(onDisk(L"b.png"));
    enter(editCaption, name, L"new.png");
    error(L"\"" + onDisk(L"b.png").wstring() +
          L"\" is missing on the disk. Please put it back, or delete it from the list.");
    view().doubleClick(L"b.png");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"b.png", L"c.png"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"b.png", L"c.png"));
}

TEST_F(EditResourceFile, isSeenInEveryView)
{
    openAt(images(), 2);
    enter(editCaption, name, L"new.png");
    view(0).doubleClick(L"b.png");
    EXPECT_THAT(names(0), ElementsAre(L"a.png", L"new.png", L"c.png"));
    EXPECT_THAT(names(1), ElementsAre(L"a.png", L"new.png", L"c.png"));
}

// Proves: TemplateResourcesItem on Delete.
TEST_F(DeleteResourceFile, asksNothingAndListsTheRest)
{
    openAt(images());
    ASSERT_TRUE(view().canDelete(L"b.png"));
    view().pressDelete(L"b.png");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"c.png"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"c.png"));
    EXPECT_FALSE(std::filesystem::exists(onDisk(L"b.png")));
    EXPECT_EQ(images(), view().selected());
}

// Not every console shows a node anew that is selected already.
TEST_F(DeleteResourceFile, listsTheRestTellsTheOtherViewsAndSelectsTheFolder)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(images());
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    const auto file = bare->object(bare->console.results.rows.at(1).lParam);
    bare->console.updates.clear();
    EXPECT_EQ(S_OK, bare->component->Notify(file.Get(), MMCN_DELETE, 0, 0));
    ASSERT_EQ(2u, bare->console.results.rows.size());
    EXPECT_EQ(L"c.png", bare->cell(bare->console.results.rows.back().lParam, 0));
    EXPECT_EQ(1u, bare->console.updates.size());
    EXPECT_THAT(bare->console.selections, ElementsAre(node.ID));
}

TEST_F(DeleteResourceFile, takesOneAfterTheOther)
{
    openAt(images());
    for (const wchar_t* const file : {L"a.png", L"c.png", L"b.png"})
    {
        view().pressDelete(file);
    }
    EXPECT_THAT(storedImages(), testing::IsEmpty());
    EXPECT_THAT(names(), testing::IsEmpty());
    EXPECT_TRUE(std::filesystem::is_directory(serverTemplates(L"Invoices\\Images"))) << "the folder itself stays";
}

TEST_F(DeleteResourceFile, takesWhatIsGoneFromTheDiskOutOfTheList)
{
    openAt(images());
    std::filesystem::remove(onDisk(L"b.png"));
    view().pressDelete(L"b.png");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"c.png"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"c.png"));
}

TEST_F(DeleteResourceFile, ofWhatWasDeletedElsewhereListsTheRest)
{
    openAt(images());
    {
        Tessaro::ResourcesFolder folder = stored(L"Invoices").getResourceFolderAt(0);
        folder.deleteResourceFile(folder.getAt(1));
    }
    view().pressDelete(L"b.png");
    EXPECT_THAT(storedImages(), ElementsAre(L"a.png", L"c.png"));
    EXPECT_THAT(names(), ElementsAre(L"a.png", L"c.png"));
}

TEST_F(DeleteResourceFile, isRefusedByTheLibraryWhileAnotherProgramHasItOpen)
{
    openAt(images());
    {
        const ServerFiles::Lock lock(onDisk(L"b.png"));
        error(inUse(L"The file \"b.png\" cannot be deleted"));
        view().pressDelete(L"b.png");
    }
    expectUnchanged();
}

TEST_F(DeleteResourceFile, isRefusedByTheLibraryWhileTheDatabaseIsInUse)
{
    openAt(images());
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().pressDelete(L"b.png");
    }
    expectUnchanged();
}

TEST_F(DeleteResourceFile, isSeenInEveryView)
{
    openAt(images(), 2);
    view(1).pressDelete(L"b.png");
    EXPECT_THAT(names(0), ElementsAre(L"a.png", L"c.png"));
    EXPECT_THAT(names(1), ElementsAre(L"a.png", L"c.png"));
}

} // namespace
} // namespace Acceptance
