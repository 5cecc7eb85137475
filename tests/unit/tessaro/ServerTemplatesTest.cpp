#include "brimlow/tessaro/ServerTemplates.h"
#include "ApplicationDisk.h"
#include "PrintTo.h"
#include "brimlow/tessaro/UserCollection.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;
using namespace Tessaro;
using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;

class ServerTemplatesTest : public testing::Test
{
  protected:
    ApplicationDisk m_disk;
};

TEST_F(ServerTemplatesTest, IsEmptyWithoutADatabaseAndMakesNone)
{
    EXPECT_EQ(0, ServerTemplates().getCount());
    EXPECT_FALSE(fs::exists(m_disk.data()));
    EXPECT_FALSE(fs::exists(m_disk.folder()));
}

TEST_F(ServerTemplatesTest, AddsApplicationsInOrderWithTheirFolders)
{
    ServerApplication application;
    application.setApplicationPath(m_disk.path(L"Zebra"));
    application.setParser(XsltEngine::DotNet);
    application.addUser(L"Guest");
    ServerTemplates applications;
    applications.addNewApplication(application);
    application.setApplicationPath(m_disk.path(L"\u00C4pfel & Birnen"));
    application.setParser(XsltEngine::Msxml);
    application.setUsers({L"b", L"a", L"b"});
    applications.addNewApplication(application);

    EXPECT_THAT(m_disk.records(),
                ElementsAre("Zebra engine=2 users=Guest,", "\u00C4pfel & Birnen engine=1 users=b,a,b,"));
    EXPECT_THAT(m_disk.files(), ElementsAre("Zebra/", "\u00C4pfel & Birnen/"));
    EXPECT_EQ(2, applications.getCount());
    EXPECT_EQ(m_disk.path(L"Zebra"), applications.getAt(0).getApplicationPath());
}

TEST_F(ServerTemplatesTest, GivesTemplatesFoldersAndFilesInOrder)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"b.xsl", "one"));
    application.addNewTemplate(m_disk.templateFile(L"a.kvd", "two"));
    application.addNewResource(L"Texts");
    application.addNewResource(L"Images");
    ResourcesFolder images = application.getResourceFolderAt(1);
    images.addResourceFile(m_disk.resourceFile(L"z.png", "three"));
    images.addResourceFile(m_disk.resourceFile(L"y.png", "four"));

    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/b.xsl", "App/a.kvd", "App/Texts/",
                                              "App/Images/", "App/Images/z.png", "App/Images/y.png"));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/Images/", "App/Images/y.png=four", "App/Images/z.png=three",
                                            "App/Texts/", "App/a.kvd=two", "App/b.xsl=one"));
    EXPECT_EQ(m_disk.path(L"App\\b.xsl"), application.getAt(0).getTemplatePath());
    EXPECT_EQ(m_disk.path(L"App\\Images"), images.getResourcesFolderPath());
    EXPECT_EQ(m_disk.path(L"App\\Images\\y.png"), images.getAt(1).getResourceFilePath());
}

TEST_F(ServerTemplatesTest, RenamesEverythingWhereItIs)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl", "one"));
    application.addNewResource(L"Images");
    ResourcesFolder images = application.getResourceFolderAt(0);
    images.addResourceFile(m_disk.resourceFile(L"x.png", "two"));

    images.renameReourceFile(images.getAt(0), L"anywhere/else\\y.png");
    application.renameTemplate(application.getAt(0), L"C:\\other\\b.xsl");
    application.renameResource(images, L"Pictures");
    ServerTemplates().renameApplication(application, m_disk.path(L"deeper\\New"));

    EXPECT_THAT(m_disk.records(),
                ElementsAre("New engine=1 users=", "New/b.xsl", "New/Pictures/", "New/Pictures/y.png"));
    EXPECT_THAT(m_disk.files(), ElementsAre("New/", "New/Pictures/", "New/Pictures/y.png=two", "New/b.xsl=one"));
}

TEST_F(ServerTemplatesTest, DeletesEverything)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl", "one"));
    application.addNewResource(L"Images");
    application.addNewResource(L"Texts");
    ResourcesFolder images = application.getResourceFolderAt(0);
    images.addResourceFile(m_disk.resourceFile(L"x.png", "two"));
    images.addResourceFile(m_disk.resourceFile(L"y.png", "three"));

    images.deleteResourceFile(images.getAt(0));
    application.deleteTemplate(application.getAt(0));
    application.deleteResource(m_disk.path(L"App\\Texts"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/Images/", "App/Images/y.png"));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/Images/", "App/Images/y.png=three"));

    application.deleteResource(images.getResourcesFolderPath());
    ServerTemplates().deleteApplication(application.getApplicationPath());
    EXPECT_THAT(m_disk.records(), IsEmpty());
    EXPECT_THAT(m_disk.files(), IsEmpty());
}

TEST_F(ServerTemplatesTest, GivesPositionsAsIds)
{
    for (const wchar_t* const name : {L"a", L"b", L"c"})
    {
        m_disk.add(name);
    }
    ServerTemplates applications;
    for (int position = 0; position < 3; ++position)
    {
        EXPECT_EQ(position, applications.getAt(position).getId());
    }
    applications.deleteApplication(m_disk.path(L"a"));
    EXPECT_EQ(L"b", applications.getAt(0).getDisplayName());
    EXPECT_EQ(0, applications.getAt(0).getId());
    EXPECT_EQ(-1, ServerApplication().getId());
}

TEST_F(ServerTemplatesTest, SaysThatAPositionIsGone)
{
    m_disk.add(L"a");
    ServerTemplates applications;
    for (const int position : {-1, 1, 1'000'000})
    {
        EXPECT_EQ(L"The application is no longer there. Please refresh the list.",
                  refusal([&] { applications.getAt(position); }));
    }
}

TEST_F(ServerTemplatesTest, GivesItsOwnCopyToBeChanged)
{
    m_disk.add(L"App", {L"Guest", L"alice"});
    ServerTemplates applications;
    applications.getAt(0).deleteUser(L"alice");
    EXPECT_THAT(applications.getAt(0).getUsers(), ElementsAre(L"Guest"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=Guest,alice,")) << "not before the update";
    applications.updateApplication(applications.getAt(0));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=Guest,"));
    EXPECT_THAT(applications.getAt(0).getUsers(), ElementsAre(L"Guest"));
}

TEST_F(ServerTemplatesTest, StaysAsItWasConstructedWhenAnotherChanges)
{
    ServerApplication application = m_disk.add(L"App");
    ServerTemplates former;
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    m_disk.add(L"Second");
    EXPECT_EQ(1, former.getCount());
    EXPECT_EQ(0, former.getAt(0).getTemplatesCount());
    EXPECT_EQ(2, ServerTemplates().getCount());
}

TEST_F(ServerTemplatesTest, TakesTheLastComponentOfAnyPathAsTheName)
{
    for (const wchar_t* const path : {L"C:\\elsewhere\\a", L"\\\\server\\share/b", L"c", L"..\\..\\d"})
    {
        ServerApplication application;
        application.setApplicationPath(path);
        ServerTemplates().addNewApplication(application);
    }
    EXPECT_THAT(m_disk.files(), ElementsAre("a/", "b/", "c/", "d/"));
    ServerTemplates applications;
    applications.renameApplication(applications.getAt(0), L"D:\\x/y\\A2");
    applications.deleteApplication(L"E:\\nowhere\\b");
    applications.deleteApplication(L"C");
    EXPECT_THAT(m_disk.files(), ElementsAre("A2/", "d/"));
    EXPECT_THAT(m_disk.records(), ElementsAre("A2 engine=1 users=", "d engine=1 users="));
}

TEST_F(ServerTemplatesTest, RefusesNamesThatAreNone)
{
    m_disk.add(L"App");
    ServerTemplates applications;
    for (const wchar_t* const path : {L"", L"C:\\x\\", L"C:\\x\\..", L"x/.", L"C:", L"C:\\nul", L"a?"})
    {
        ServerApplication application;
        application.setApplicationPath(path);
        EXPECT_NE(L"accepted", refusal([&] { applications.addNewApplication(application); }));
        EXPECT_NE(L"accepted", refusal([&] { applications.renameApplication(applications.getAt(0), path); }));
    }
    EXPECT_EQ(L"The name \"nul\" is reserved by Windows for a device.",
              refusal([&] { applications.renameApplication(applications.getAt(0), L"C:\\nul"); }));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/"));
}

TEST_F(ServerTemplatesTest, RefusesANameThatAnotherHasInAnyCase)
{
    m_disk.add(L"App");
    const ServerApplication other = m_disk.add(L"Other");
    EXPECT_EQ(L"The name \"App\" is taken by another application. Please choose another name.",
              refusal([&] { m_disk.add(L"APP"); }));
    EXPECT_EQ(L"The name \"App\" is taken by another application. Please choose another name.",
              refusal([&] { ServerTemplates().renameApplication(other, L"app"); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "Other/"));
}

TEST_F(ServerTemplatesTest, RefusesANameThatIsOnTheDiskButNotInTheList)
{
    const ServerApplication application = m_disk.add(L"App");
    fs::create_directory(m_disk.folder() / "Leftover");
    const String message = L"There is already a file or folder \"" + m_disk.path(L"Leftover") +
                           L"\", although it is not in the list. Please move it elsewhere first.";
    EXPECT_EQ(message, refusal([&] { m_disk.add(L"Leftover"); }));
    EXPECT_EQ(message, refusal([&] { ServerTemplates().renameApplication(application, L"Leftover"); }));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "Leftover/"));
}

TEST_F(ServerTemplatesTest, ChangesTheCaseOfAName)
{
    ServerApplication application = m_disk.add(L"app");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    application.renameTemplate(application.getAt(0), L"A.XSL");
    ServerTemplates().renameApplication(application, L"APP");
    EXPECT_THAT(m_disk.records(), ElementsAre("APP engine=1 users=", "APP/A.XSL"));
    EXPECT_TRUE(fs::exists(m_disk.folder() / "APP" / "A.XSL"));
    EXPECT_EQ(2u, m_disk.files().size());
}

TEST_F(ServerTemplatesTest, StoresEngineAndUsersWhenRenaming)
{
    ServerApplication application = m_disk.add(L"App", {L"Guest"});
    application.setParser(XsltEngine::DotNet);
    application.addUser(L"alice");
    ServerTemplates().renameApplication(application, L"New");
    EXPECT_THAT(m_disk.records(), ElementsAre("New engine=2 users=Guest,alice,"));
    ServerTemplates().renameApplication(applicationNamed(L"New"), L"New");
    EXPECT_THAT(m_disk.records(), ElementsAre("New engine=2 users=Guest,alice,")) << "its own name";
}

// Two consoles, each with its copy.
TEST_F(ServerTemplatesTest, UpdatesWhatWasChangedInTheCopyOnly)
{
    ServerApplication first = m_disk.add(L"App", {L"Guest", L"alice"});
    ServerApplication second = first;
    ServerApplication third = first;
    first.setParser(XsltEngine::DotNet);
    first.addUser(L"bob");
    ServerTemplates().updateApplication(first);
    second.deleteUser(L"alice");
    second.addUser(L"carol");
    ServerTemplates().updateApplication(second);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=2 users=Guest,bob,carol,"));
    ServerTemplates().updateApplication(third);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=2 users=Guest,bob,carol,")) << "nothing was changed in it";
}

TEST_F(ServerTemplatesTest, WritesNothingForACopyThatWasNotChanged)
{
    ServerApplication application = m_disk.add(L"App", {L"Guest"});
    const ServerTemplates before;
    ServerTemplates templates;
    templates.updateApplication(application);
    EXPECT_TRUE(before.state() == templates.state());
    EXPECT_TRUE(before.state() == UserCollection().state());

    application.addUser(L"alice");
    templates.updateApplication(application);
    EXPECT_FALSE(before.state() == templates.state());
    EXPECT_TRUE(templates.state() == UserCollection().state());
}

TEST_F(ServerTemplatesTest, UpdatesWithTheSameCopyAgain)
{
    ServerApplication application = m_disk.add(L"App", {L"Guest"});
    application.addUser(L"alice");
    application.setParser(XsltEngine::DotNet);
    ServerTemplates().updateApplication(application);
    application.deleteUser(L"alice");
    application.setParser(XsltEngine::Msxml);
    ServerTemplates().updateApplication(application);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=Guest,"));
}

TEST_F(ServerTemplatesTest, StoresAListOfUsersToTheLetter)
{
    ServerApplication application = m_disk.add(L"App", {L"a", L"b"});
    application.setUsers({L"b", L"a", L"a", L"", L"\u00C4"});
    ServerTemplates().updateApplication(application);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=b,a,a,,\u00C4,"));
}

TEST_F(ServerTemplatesTest, DoesNotBringTemplatesBackThatAnotherDeleted)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    ServerApplication stale = application;
    application.deleteTemplate(application.getAt(0));
    stale.addUser(L"alice");
    ServerTemplates().updateApplication(stale);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=alice,"));
}

TEST_F(ServerTemplatesTest, SaysThatAnApplicationIsGone)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    application.addNewResource(L"Images");
    ResourcesFolder images = application.getResourceFolderAt(0);
    const Template own = application.getAt(0);
    ServerTemplates().deleteApplication(L"App");
    // Its row is free again; it is another one all the same.
    m_disk.add(L"App");

    const String gone = L"The application \"App\" has been removed by another program. Please refresh the list.";
    ServerTemplates applications;
    EXPECT_EQ(gone, refusal([&] { applications.updateApplication(application); }));
    EXPECT_EQ(gone, refusal([&] { applications.renameApplication(application, L"b"); }));
    EXPECT_EQ(gone, refusal([&] { application.addNewTemplate(m_disk.templateFile(L"b.xsl")); }));
    EXPECT_EQ(gone, refusal([&] { application.renameTemplate(own, L"b.xsl"); }));
    EXPECT_EQ(gone, refusal([&] { application.deleteTemplate(own); }));
    EXPECT_EQ(gone, refusal([&] { application.addNewResource(L"b"); }));
    EXPECT_EQ(gone, refusal([&] { application.renameResource(images, L"b"); }));
    EXPECT_EQ(gone, refusal([&] { application.deleteResource(L"Images"); }));
    EXPECT_EQ(L"The folder \"Images\" has been removed by another program. Please refresh the list.",
              refusal([&] { images.addResourceFile(m_disk.resourceFile(L"x.png")); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/"));
}

TEST_F(ServerTemplatesTest, SaysThatAnApplicationIsNotStoredYet)
{
    ServerApplication application;
    application.setApplicationPath(m_disk.path(L"App"));
    const String message = L"The application \"App\" is not stored yet. Please add it first.";
    EXPECT_EQ(message, refusal([&] { ServerTemplates().updateApplication(application); }));
    EXPECT_EQ(message, refusal([&] { application.addNewResource(L"Images"); }));
    EXPECT_EQ(L"The folder belongs to no application yet. Please add it to one first.",
              refusal([&] { ResourcesFolder().addResourceFile(m_disk.resourceFile(L"x.png")); }));
}

TEST_F(ServerTemplatesTest, DeletesWhatIsGoneAlreadyWithoutAWord)
{
    m_disk.add(L"App");
    ServerTemplates().deleteApplication(m_disk.path(L"Missing"));
    ServerTemplates().deleteApplication(L"");
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
}

TEST_F(ServerTemplatesTest, DeletesAnApplicationWithFilesThatAreNotListedOrReadOnly)
{
    m_disk.add(L"App");
    fs::create_directories(m_disk.folder() / "App" / "deep" / "deeper");
    std::ofstream(m_disk.folder() / "App" / "deep" / "deeper" / "file") << "x";
    fs::permissions(m_disk.folder() / "App" / "deep" / "deeper" / "file", fs::perms::owner_read);
    ServerTemplates().deleteApplication(L"App");
    EXPECT_THAT(m_disk.records(), IsEmpty());
    EXPECT_THAT(m_disk.files(), IsEmpty());
}

TEST_F(ServerTemplatesTest, ManagesAnApplicationWhoseFolderSomebodyDeleted)
{
    ServerApplication application = m_disk.add(L"App");
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    fs::remove_all(m_disk.folder() / "App");
    const String missing =
        L"\"" + m_disk.path(L"App") + L"\" is missing on the disk. Please put it back, or delete it from the list.";
    EXPECT_EQ(missing, refusal([&] { ServerTemplates().renameApplication(application, L"New"); }));
    EXPECT_EQ(missing, refusal([&] { application.addNewTemplate(m_disk.templateFile(L"b.xsl")); }));
    EXPECT_EQ(missing, refusal([&] { application.addNewResource(L"Images"); }));
    EXPECT_EQ(missing, refusal([&] { application.renameTemplate(application.getAt(0), L"b.xsl"); }));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl"));
    application.deleteTemplate(application.getAt(0));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
    ServerTemplates().deleteApplication(L"App");
    EXPECT_THAT(m_disk.records(), IsEmpty());
    EXPECT_THAT(m_disk.files(), IsEmpty());
}

TEST_F(ServerTemplatesTest, CopiesTheContentOfAnApplicationThatIsAddedAgainNowhere)
{
    ServerApplication application = m_disk.add(L"App", {L"Guest"});
    application.addNewTemplate(m_disk.templateFile(L"a.xsl"));
    application.setApplicationPath(L"Second");
    ServerTemplates().addNewApplication(application);
    EXPECT_THAT(m_disk.records(),
                ElementsAre("App engine=1 users=Guest,", "App/a.xsl", "Second engine=1 users=Guest,"));
}

} // namespace
