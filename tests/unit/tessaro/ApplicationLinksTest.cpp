#include "ApplicationDisk.h"
#include "PrintTo.h"
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

// Somebody put links to a folder outside in the place of folders.
class ApplicationLinksTest : public testing::Test
{
  protected:
    ApplicationLinksTest() : m_application(m_disk.add(L"App"))
    {
        m_application.addNewTemplate(m_disk.templateFile(L"a.xsl", "a"));
        m_application.addNewResource(L"Images");
        m_images = m_application.getResourceFolderAt(0);
        m_images.addResourceFile(m_disk.resourceFile(L"x.png", "x"));
        fs::create_directory(outside());
        std::ofstream(outside() / "a.xsl") << "outside";
        std::ofstream(outside() / "x.png") << "outside";
    }

    fs::path outside() const { return m_disk.outside().folder() / "elsewhere"; }

    FolderLink linkInPlaceOf(const char* relative) const
    {
        fs::remove_all(m_disk.folder() / relative);
        return {outside(), m_disk.folder() / relative};
    }

    String refusalOf(const wchar_t* relative) const
    {
        return L"The folder \"" + m_disk.path(relative) +
               L"\" is reached through a link to another place, where nothing is changed. "
               L"Please put a folder in the place of the link.";
    }

    void expectNothingElsewhereChanged() const
    {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(outside()))
        {
            names.push_back(entry.path().filename().string());
        }
        EXPECT_THAT(names, testing::UnorderedElementsAre("a.xsl", "x.png"));
    }

    ApplicationDisk m_disk;
    ServerApplication m_application;
    ResourcesFolder m_images;
};

TEST_F(ApplicationLinksTest, NothingChangesThroughAnApplicationThatIsALink)
{
    const FolderLink link = linkInPlaceOf("App");
    const String refused = refusalOf(L"App");
    EXPECT_EQ(refused, refusal([&] { m_application.addNewTemplate(m_disk.templateFile(L"b.xsl")); }));
    EXPECT_EQ(refused, refusal([&] { m_application.renameTemplate(m_application.getAt(0), L"b.xsl"); }));
    EXPECT_EQ(refused, refusal([&] { m_application.deleteTemplate(m_application.getAt(0)); }));
    EXPECT_EQ(refused, refusal([&] { m_application.addNewResource(L"Texts"); }));
    EXPECT_EQ(refused, refusal([&] { m_application.renameResource(m_images, L"Texts"); }));
    EXPECT_EQ(refused, refusal([&] { m_application.deleteResource(L"Images"); }));
    EXPECT_EQ(refusalOf(L"App\\Images"), refusal([&] { m_images.deleteResourceFile(m_images.getAt(0)); }));
    expectNothingElsewhereChanged();
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl", "App/Images/", "App/Images/x.png"));
}

TEST_F(ApplicationLinksTest, NothingChangesThroughAFolderThatIsALink)
{
    const FolderLink link = linkInPlaceOf("App/Images");
    const String refused = refusalOf(L"App\\Images");
    EXPECT_EQ(refused, refusal([&] { m_images.addResourceFile(m_disk.resourceFile(L"y.png")); }));
    EXPECT_EQ(refused, refusal([&] { m_images.renameReourceFile(m_images.getAt(0), L"y.png"); }));
    EXPECT_EQ(refused, refusal([&] { m_images.deleteResourceFile(m_images.getAt(0)); }));
    expectNothingElsewhereChanged();
}

TEST_F(ApplicationLinksTest, AJournalIsNotFollowedThroughThem)
{
    const FolderLink link = linkInPlaceOf("App");
    const std::string text = std::string(32, '0') + "\nApp\\~0123456789abcdef0123456789abcdef.tmp\nApp\\a.xsl\n";
    std::ofstream journal(m_disk.data() / "Tessaro.moving", std::ios::binary);
    for (const char unit : text)
    {
        journal.put(unit).put('\0');
    }
    journal.close();
    ServerTemplates().getCount();
    EXPECT_FALSE(fs::exists(m_disk.data() / "Tessaro.moving"));
    expectNothingElsewhereChanged();
}

// Windows moves and removes the link. Wine moves what it points to.
#ifndef _WIN32
TEST_F(ApplicationLinksTest, DeletingRemovesTheLinkOnly)
{
    const FolderLink link = linkInPlaceOf("App/Images");
    m_application.deleteResource(L"Images");
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
    const FolderLink other = linkInPlaceOf("App");
    ServerTemplates().deleteApplication(L"App");
    EXPECT_THAT(m_disk.files(), IsEmpty());
    EXPECT_THAT(m_disk.records(), IsEmpty());
    expectNothingElsewhereChanged();
}

TEST_F(ApplicationLinksTest, DeletingDoesNotGoThroughLinksInAFolder)
{
    const FolderLink link(outside(), m_disk.folder() / "App" / "link");
    const FolderLink deeper(outside(), m_disk.folder() / "App" / "Images" / "link");
    ServerTemplates().deleteApplication(L"App");
    EXPECT_THAT(m_disk.files(), IsEmpty());
    expectNothingElsewhereChanged();
}
#endif

} // namespace
