#include "brimlow/tessaro/ServerTemplates.h"
#include "ApplicationDisk.h"
#include "PrintTo.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

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

} // namespace
