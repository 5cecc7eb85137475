#include "brimlow/tessaro/ServerApplication.h"
#include "ApplicationDisk.h"
#include "PrintTo.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace
{

namespace fs = std::filesystem;
using namespace Tessaro;
using Core::String;
using testing::ElementsAre;

TEST(ServerApplication, StartsWithMsxmlAndNothingInIt)
{
    const ServerApplication application;
    EXPECT_EQ(-1, application.getId());
    EXPECT_EQ(L"", application.getDisplayName());
    EXPECT_EQ(L"", application.getApplicationPath());
    EXPECT_EQ(XsltEngine::Msxml, application.getParser());
    EXPECT_EQ(0, application.getTemplatesCount());
    EXPECT_EQ(0, application.getResourcesCount());
    EXPECT_TRUE(application.getUsers().empty());
}

TEST(ServerApplication, IsNamedByTheLastComponentOfItsPath)
{
    ServerApplication application;
    Template file;
    ResourceFile resource;
    for (const wchar_t* const path : {L"C:\\a\\Name", L"C:/a/Name", L"a\\b/Name", L"a/b\\Name", L"Name"})
    {
        application.setApplicationPath(path);
        file.setTemplatePath(path);
        resource.setResourceFilePath(path);
        EXPECT_EQ(L"Name", application.getDisplayName());
        EXPECT_EQ(L"Name", file.getDisplayName());
        EXPECT_EQ(L"Name", resource.getDisplayName());
        EXPECT_EQ(path, application.getApplicationPath());
        EXPECT_EQ(path, file.getTemplatePath());
        EXPECT_EQ(path, resource.getResourceFilePath());
    }
}

TEST(ServerApplication, GrantsAccessOnceAndWithdrawsItWhole)
{
    ServerApplication application;
    application.addUser(L"Guest");
    application.addUser(L"alice");
    application.addUser(L"Guest");
    application.addUser(L"Alice");
    EXPECT_THAT(application.getUsers(), ElementsAre(L"Guest", L"alice", L"Alice"));
    application.setUsers({L"a", L"b", L"a", L"A"});
    application.deleteUser(L"a");
    application.deleteUser(L"nobody");
    EXPECT_THAT(application.getUsers(), ElementsAre(L"b", L"A"));
}

TEST(ServerApplication, ChangesNoOtherCopy)
{
    ServerApplication first;
    first.setUsers({L"a"});
    ServerApplication second = first;
    second.addUser(L"b");
    second.setParser(XsltEngine::DotNet);
    second.setApplicationPath(L"x");
    EXPECT_THAT(first.getUsers(), ElementsAre(L"a"));
    EXPECT_EQ(XsltEngine::Msxml, first.getParser());
    EXPECT_EQ(L"", first.getApplicationPath());
}

class TemplatesTest : public testing::Test
{
  protected:
    TemplatesTest() : m_application(m_disk.add(L"App")) {}

    void add(const wchar_t* name, std::string_view content = "content")
    {
        m_application.addNewTemplate(m_disk.templateFile(name, content));
    }

    static Template fileAt(const String& path)
    {
        Template file;
        file.setTemplatePath(path);
        return file;
    }

    ApplicationDisk m_disk;
    ServerApplication m_application;
};

TEST_F(TemplatesTest, SaysThatAPositionIsGone)
{
    add(L"a.xsl");
    m_application.addNewResource(L"Images");
    for (const int position : {-1, 1})
    {
        EXPECT_EQ(L"The template is no longer there. Please refresh the list.",
                  refusal([&] { m_application.getAt(position); }));
        EXPECT_EQ(L"The folder is no longer there. Please refresh the list.",
                  refusal([&] { m_application.getResourceFolderAt(position); }));
        EXPECT_EQ(L"The file is no longer there. Please refresh the list.",
                  refusal([&] { m_application.getResourceFolderAt(0).getAt(position); }));
    }
}

TEST_F(TemplatesTest, AreCopiedWholeAndWritable)
{
    std::string content(3'000'000, 'x');
    content[2'500'000] = '\0';
    m_disk.outside().write(L"big.kvd", content);
    const fs::path source = m_disk.outside().folder() / "big.kvd";
    fs::permissions(source, fs::perms::owner_read);
    m_application.addNewTemplate(fileAt(fromPath(source)));
    const fs::path copy = m_disk.folder() / "App" / "big.kvd";
    std::ifstream file(copy, std::ios::binary);
    EXPECT_TRUE(content == std::string(std::istreambuf_iterator<char>(file), {}));
    EXPECT_NE(fs::perms::none, fs::status(copy).permissions() & fs::perms::owner_write);
    EXPECT_TRUE(fs::exists(source));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/big.kvd"));
}

TEST_F(TemplatesTest, ThatCannotBeCopiedAreRefusedWithTheReason)
{
    const String missing = m_disk.outside().path(L"missing.xsl");
    EXPECT_EQ(L"The file \"" + missing + L"\" does not exist.",
              refusal([&] { m_application.addNewTemplate(fileAt(missing)); }));
    const String folder = fromPath(m_disk.outside().folder());
    EXPECT_EQ(L"\"" + folder + L"\" cannot be copied, because it is a folder.",
              refusal([&] { m_application.addNewTemplate(fileAt(folder)); }));
    EXPECT_EQ(L"The name is empty. Please give one.", refusal([&] { m_application.addNewTemplate(fileAt(L"")); }));
    EXPECT_EQ(L"The name \"a.xsl.\" ends in a dot or a blank, which Windows does not allow.",
              refusal([&] { m_application.addNewTemplate(fileAt(L"C:\\a.xsl.")); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/"));
}

TEST_F(TemplatesTest, ThatAreTheVeryFileOrInItsPlaceAreRefused)
{
    add(L"a.xsl", "listed");
    std::ofstream(m_disk.folder() / "App" / "b.xsl") << "by hand";
    const String own = m_disk.path(L"App\\b.xsl");
    const String unlisted = L"There is already a file or folder \"" + own +
                            L"\", although it is not in the list. Please move it elsewhere first.";
    EXPECT_EQ(unlisted, refusal([&] { m_application.addNewTemplate(fileAt(own)); }));
    EXPECT_EQ(unlisted, refusal([&] { add(L"b.xsl", "other"); }));
    EXPECT_EQ(unlisted, refusal([&] { m_application.renameTemplate(m_application.getAt(0), L"b.xsl"); }));
    const String taken = L"The name \"a.xsl\" is taken by another template. Please choose another name.";
    EXPECT_EQ(taken, refusal([&] { m_application.addNewTemplate(m_application.getAt(0)); }));
    EXPECT_EQ(taken, refusal([&] { add(L"A.XSL"); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=listed", "App/b.xsl=by hand"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl"));
}

TEST_F(TemplatesTest, AreRenamedWhereTheyAreAndKeepTheirPlaceInTheList)
{
    add(L"a.xsl");
    add(L"b.xsl");
    const Template first = m_application.getAt(0);
    m_application.renameTemplate(first, L"C:\\Other\\App\\c.xsl");
    EXPECT_EQ(m_disk.path(L"App\\c.xsl"), m_application.getAt(0).getTemplatePath());
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/c.xsl", "App/b.xsl"));
    EXPECT_EQ(L"The name \"b.xsl\" is taken by another template. Please choose another name.",
              refusal([&] { m_application.renameTemplate(m_application.getAt(0), L"B.xsl"); }));
    EXPECT_EQ(L"The template \"a.xsl\" has been removed by another program. Please refresh the list.",
              refusal([&] { m_application.renameTemplate(first, L"d.xsl"); }));
    m_application.renameTemplate(m_application.getAt(1), L"elsewhere\\b.xsl");
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/b.xsl=content", "App/c.xsl=content"));
}

TEST_F(TemplatesTest, ThatSomebodyDeletedOnlyLeaveTheList)
{
    add(L"a.xsl");
    add(L"b.xsl");
    fs::remove(m_disk.folder() / "App" / "a.xsl");
    fs::remove(m_disk.folder() / "App" / "b.xsl");
    fs::create_directory(m_disk.folder() / "App" / "b.xsl");
    const Template gone = m_application.getAt(0);
    EXPECT_EQ(L"\"" + gone.getTemplatePath() +
                  L"\" is missing on the disk. Please put it back, or delete it from the list.",
              refusal([&] { m_application.renameTemplate(gone, L"c.xsl"); }));
    m_application.deleteTemplate(gone);
    m_application.deleteTemplate(gone);
    m_application.deleteTemplate(fileAt(L"B.XSL"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/b.xsl/")) << "a folder in its place is none of ours";
}

TEST_F(TemplatesTest, AreDeletedWhenTheyAreReadOnly)
{
    add(L"a.xsl");
    fs::permissions(m_disk.folder() / "App" / "a.xsl", fs::perms::owner_read);
    m_application.deleteTemplate(m_application.getAt(0));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/"));
}

TEST_F(TemplatesTest, ComeWithWhatOthersChangedMeanwhile)
{
    ServerApplication stale = m_application;
    add(L"a.xsl");
    stale.addNewResource(L"Images");
    EXPECT_EQ(1, stale.getTemplatesCount());
    EXPECT_EQ(1, stale.getResourcesCount());
    ServerTemplates().renameApplication(m_application, L"New");
    stale.addNewTemplate(m_disk.templateFile(L"b.xsl"));
    EXPECT_EQ(m_disk.path(L"New\\b.xsl"), stale.getAt(1).getTemplatePath());
    EXPECT_EQ(m_disk.path(L"New"), stale.getApplicationPath());
    EXPECT_THAT(m_disk.files(), ElementsAre("New/", "New/Images/", "New/a.xsl=content", "New/b.xsl=content"));
}

TEST_F(TemplatesTest, LeaveWhatWaitsForAnUpdate)
{
    m_application.setParser(XsltEngine::DotNet);
    m_application.addUser(L"alice");
    add(L"a.xsl");
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl"));
    EXPECT_EQ(XsltEngine::DotNet, m_application.getParser());
    ServerTemplates().updateApplication(m_application);
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=2 users=alice,", "App/a.xsl"));
}

TEST_F(TemplatesTest, StayWhatTheyWereInOtherCopies)
{
    add(L"a.xsl");
    const ServerApplication former = m_application;
    const Template& kept = former.getAt(0);
    m_application.deleteTemplate(m_application.getAt(0));
    EXPECT_EQ(1, former.getTemplatesCount());
    EXPECT_EQ(L"a.xsl", kept.getDisplayName());
    EXPECT_EQ(0, m_application.getTemplatesCount());
}

// 300 characters in the names alone.
TEST_F(TemplatesTest, MayHaveLongPaths)
{
    const std::wstring folder(100, L'f');
    const std::wstring name = std::wstring(100, L'n') + L".png";
    ServerApplication application = m_disk.add(std::wstring(120, L'a'));
    application.addNewResource(folder);
    ResourcesFolder resources = application.getResourceFolderAt(0);
    m_disk.outside().write(L"x.png", "x");
    ResourceFile file;
    file.setResourceFilePath(m_disk.outside().path(L"x.png"));
    resources.addResourceFile(file);
    resources.renameReourceFile(resources.getAt(0), name);
    EXPECT_LT(300u, resources.getAt(0).getResourceFilePath().length());
    application.renameResource(resources, std::wstring(110, L'g'));
    application.deleteResource(application.getResourceFolderAt(0).getResourcesFolderPath());
    EXPECT_THAT(m_disk.files(), testing::SizeIs(2));
    ServerTemplates().deleteApplication(application.getApplicationPath());
    EXPECT_THAT(m_disk.files(), ElementsAre("App/"));
}

class ResourcesTest : public TemplatesTest
{
  protected:
    ResourcesTest()
    {
        m_application.addNewResource(L"Images");
        m_folder = m_application.getResourceFolderAt(0);
    }

    ResourcesFolder m_folder;
};

TEST_F(ResourcesTest, HavePositionsAsIds)
{
    EXPECT_EQ(-1, ResourcesFolder().getId());
    m_application.addNewResource(L"Texts");
    EXPECT_EQ(0, m_application.getResourceFolderAt(0).getId());
    EXPECT_EQ(1, m_application.getResourceFolderAt(1).getId());
    m_application.deleteResource(L"Images");
    EXPECT_EQ(L"Texts", m_application.getResourceFolderAt(0).getDisplayName());
    EXPECT_EQ(0, m_application.getResourceFolderAt(0).getId());
}

TEST_F(ResourcesTest, TakeTheWholeTextForTheNameOfANewFolder)
{
    EXPECT_EQ(L"The name \"a\\b\" contains one of the characters \\ / : * ? \" < > |, which are not allowed.",
              refusal([&] { m_application.addNewResource(L"a\\b"); }));
    EXPECT_EQ(L"The name is empty. Please give one.", refusal([&] { m_application.addNewResource(L""); }));
    EXPECT_EQ(L"The name \"Images\" is taken by another folder. Please choose another name.",
              refusal([&] { m_application.addNewResource(L"IMAGES"); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/Images/"));
}

TEST_F(ResourcesTest, ShareTheFolderWithTemplates)
{
    add(L"a.xsl");
    EXPECT_EQ(L"There is already a file or folder \"" + m_disk.path(L"App\\a.xsl") +
                  L"\", although it is not in the list. Please move it elsewhere first.",
              refusal([&] { m_application.addNewResource(L"a.xsl"); }));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl", "App/Images/"));
}

TEST_F(ResourcesTest, AreRefusedLikeTemplates)
{
    m_folder.addResourceFile(m_disk.resourceFile(L"x.png"));
    const String taken = L"The name \"x.png\" is taken by another file. Please choose another name.";
    EXPECT_EQ(taken, refusal([&] { m_folder.addResourceFile(m_disk.resourceFile(L"x.png")); }));
    EXPECT_EQ(taken, refusal([&] { m_folder.addResourceFile(m_folder.getAt(0)); }));
    EXPECT_EQ(L"The name \"aux\" is reserved by Windows for a device.",
              refusal([&] { m_folder.renameReourceFile(m_folder.getAt(0), L"C:\\aux"); }));
    ResourceFile missing;
    missing.setResourceFilePath(L"missing.png");
    EXPECT_EQ(L"The file \"missing.png\" has been removed by another program. Please refresh the list.",
              refusal([&] { m_folder.renameReourceFile(missing, L"y.png"); }));
    m_folder.deleteResourceFile(missing);
    EXPECT_EQ(1, m_folder.getCount());
}

TEST_F(ResourcesTest, OfAFolderThatIsGoneAreRefused)
{
    m_folder.addResourceFile(m_disk.resourceFile(L"x.png"));
    m_application.deleteResource(L"Images");
    // Its row is free again; it is another one all the same.
    m_application.addNewResource(L"Images");
    const String gone = L"The folder \"Images\" has been removed by another program. Please refresh the list.";
    EXPECT_EQ(gone, refusal([&] { m_folder.addResourceFile(m_disk.resourceFile(L"y.png")); }));
    EXPECT_EQ(gone, refusal([&] { m_folder.renameReourceFile(m_folder.getAt(0), L"y.png"); }));
    EXPECT_EQ(gone, refusal([&] { m_folder.deleteResourceFile(m_folder.getAt(0)); }));
    EXPECT_EQ(1, m_folder.getCount()) << "the copy is what it was";
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/Images/"));
}

TEST_F(ResourcesTest, FollowAFolderThatGotAnotherName)
{
    m_application.renameResource(m_folder, L"x\\Pictures");
    m_folder.addResourceFile(m_disk.resourceFile(L"x.png"));
    EXPECT_EQ(m_disk.path(L"App\\Pictures\\x.png"), m_folder.getAt(0).getResourceFilePath());
    EXPECT_EQ(L"Pictures", m_folder.getDisplayName());
}

TEST_F(ResourcesTest, AreManagedWithoutTheirFolderOnTheDisk)
{
    m_folder.addResourceFile(m_disk.resourceFile(L"x.png"));
    fs::remove_all(m_disk.folder() / "App" / "Images");
    const String missing = L"\"" + m_disk.path(L"App\\Images") +
                           L"\" is missing on the disk. Please put it back, or delete it from the list.";
    EXPECT_EQ(missing, refusal([&] { m_folder.addResourceFile(m_disk.resourceFile(L"y.png")); }));
    EXPECT_EQ(missing, refusal([&] { m_folder.renameReourceFile(m_folder.getAt(0), L"y.png"); }));
    EXPECT_EQ(missing, refusal([&] { m_application.renameResource(m_folder, L"Pictures"); }));
    m_folder.deleteResourceFile(m_folder.getAt(0));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/Images/"));
    m_application.deleteResource(L"Images");
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users="));
}

} // namespace
