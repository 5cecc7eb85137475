#include "ApplicationDisk.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "TessaroStore.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace Tessaro;
using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;

// What is in the database may come from elsewhere.
class ApplicationReaderTest : public testing::Test
{
  protected:
    ApplicationReaderTest()
    {
        ServerApplication application = m_disk.add(L"App", {L"Guest"});
        application.addNewTemplate(m_disk.templateFile(L"a.xsl", "a"));
        application.addNewTemplate(m_disk.templateFile(L"b.xsl", "b"));
        application.addNewResource(L"Images");
        ResourcesFolder images = application.getResourceFolderAt(0);
        images.addResourceFile(m_disk.resourceFile(L"x.png", "x"));
    }

    static void change(const char* sql) { OtherProgram(TessaroStore::machinePlace().database.path).execute(sql); }

    ApplicationDisk m_disk;
};

TEST_F(ApplicationReaderTest, PassesOverNamesThatAreNoneWithAllThatIsInThem)
{
    change("UPDATE template SET name = '..\\..\\a.xsl' WHERE name = 'a.xsl'");
    change("UPDATE resource_file SET name = 'C:x'");
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=Guest,", "App/b.xsl", "App/Images/"));
    change("UPDATE resource_folder SET name = '..'");
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=Guest,", "App/b.xsl"));
    change("UPDATE application SET name = ''");
    EXPECT_THAT(m_disk.records(), IsEmpty());
}

TEST_F(ApplicationReaderTest, MakesNoPathOfSuchAName)
{
    ServerApplication application = applicationNamed(L"App");
    const ResourcesFolder images = application.getResourceFolderAt(0);
    const ServerApplication former = application;
    change("UPDATE template SET name = '..\\Other\\a.xsl' WHERE name = 'a.xsl'");
    application.deleteTemplate(former.getAt(0));
    EXPECT_EQ(L"The template \"a.xsl\" has been removed by another program. Please refresh the list.",
              refusal([&] { application.renameTemplate(former.getAt(0), L"c.xsl"); }));
    change("UPDATE resource_folder SET name = '..'");
    ResourcesFolder folder = images;
    EXPECT_EQ(L"The folder \"Images\" has been removed by another program. Please refresh the list.",
              refusal([&] { folder.deleteResourceFile(images.getAt(0)); }));
    change("UPDATE application SET name = '..\\Data'");
    ServerTemplates().deleteApplication(L"App");
    EXPECT_EQ(L"The application \"App\" has been removed by another program. Please refresh the list.",
              refusal([&] { ServerTemplates().renameApplication(application, L"New"); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/Images/", "App/Images/x.png=x", "App/a.xsl=a", "App/b.xsl=b"));
}

TEST_F(ApplicationReaderTest, ReadsWhateverTheColumnsHold)
{
    change("UPDATE application SET engine = 'text', identity = 7");
    change("UPDATE access SET user = x'C328', position = -3.5");
    change("UPDATE template SET name = 5 WHERE name = 'a.xsl'");
    EXPECT_EQ(1, ServerTemplates().getCount());
    EXPECT_EQ(2, applicationNamed(L"App").getTemplatesCount());
    EXPECT_EQ(0, static_cast<int>(applicationNamed(L"App").getParser())) << "an engine that is none is kept";
}

TEST_F(ApplicationReaderTest, PassesOverWhatBelongsToNothing)
{
    const auto before = m_disk.records();
    change("INSERT INTO template (application, name, name_key) VALUES (99, 'x', 'X')");
    change("INSERT INTO resource_folder (application, name, name_key) VALUES (99, 'x', 'X')");
    change("INSERT INTO resource_file (folder, name, name_key) VALUES (99, 'x', 'X')");
    change("INSERT INTO access VALUES (99, 0, 'x')");
    EXPECT_EQ(before, m_disk.records());
}

TEST_F(ApplicationReaderTest, KeepsAccessInTheStoredOrder)
{
    change("INSERT INTO access VALUES (1, 9, 'last'), (1, 3, 'middle')");
    EXPECT_THAT(applicationNamed(L"App").getUsers(), ElementsAre(L"Guest", L"middle", L"last"));
}

TEST_F(ApplicationReaderTest, RefusesADatabaseOfANewerVersion)
{
    change("PRAGMA user_version = 9");
    EXPECT_TRUE(refusal([] { ServerTemplates(); }).find(L"was written by a newer version") != String::npos);
}

} // namespace
