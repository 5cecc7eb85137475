#include "ApplicationDisk.h"
#include "ApplicationStore.h"
#include "FaultyDisk.h"
#include "FaultyFiles.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{

namespace fs = std::filesystem;
using namespace Tessaro;
using Core::String;
using testing::ElementsAre;

class MoveJournalTest : public testing::Test
{
  protected:
    MoveJournalTest() : m_application(m_disk.add(L"App"))
    {
        m_application.addNewTemplate(m_disk.templateFile(L"a.xsl", "a"));
    }

    fs::path journal() const { return m_disk.data() / "Tessaro.moving"; }

    // What a program leaves that died after a move and before it could commit.
    void leave(const std::string& id, const std::string& from, const std::string& to) const
    {
        const std::string text = id + '\n' + from + '\n' + to + '\n';
        std::ofstream file(journal(), std::ios::binary);
        for (const char unit : text)
        {
            file.put(unit).put('\0');
        }
    }
    void leave(const std::string& from, const std::string& to) const { leave(std::string(32, '0'), from, to); }

    void makeFile(const std::string& relative, const char* content = "content") const
    {
        fs::create_directories((m_disk.folder() / relative).parent_path());
        std::ofstream(m_disk.folder() / relative) << content;
    }

    String database() const { return TessaroStore::machinePlace().database.path; }

    ApplicationDisk m_disk;
    ServerApplication m_application;
};

TEST_F(MoveJournalTest, IsSettledByTheNextLook)
{
    fs::rename(m_disk.folder() / "App", m_disk.folder() / "New");
    leave("App", "New");
    EXPECT_EQ(1, ServerTemplates().getCount());
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
    EXPECT_FALSE(fs::exists(journal()));
}

TEST_F(MoveJournalTest, IsSettledBeforeTheNextChange)
{
    // In this process, so that nothing reads before the change.
    fs::rename(m_disk.folder() / "App" / "a.xsl", m_disk.folder() / "App" / "b.xsl");
    leave("App\\a.xsl", "App\\b.xsl");
    m_application.renameTemplate(m_application.getAt(0), L"c.xsl");
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/c.xsl=a"));
}

TEST_F(MoveJournalTest, IsSettledBeforeAFolderIsLookedFor)
{
    fs::rename(m_disk.folder() / "App", m_disk.folder() / "New");
    leave("App", "New");
    m_application.addNewTemplate(m_disk.templateFile(L"b.xsl", "b"));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a", "App/b.xsl=b"));
}

TEST_F(MoveJournalTest, RemovesWhatWasOnItsWay)
{
    const std::string temporary = "~0123456789abcdef0123456789abcdef.tmp";
    makeFile("App/b.xsl");
    leave("App\\" + temporary, "App\\b.xsl");
    ServerTemplates().getCount();
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a")) << "an addition that was moved";
    makeFile("App/" + temporary);
    leave("App\\" + temporary, "App\\b.xsl");
    ServerTemplates().getCount();
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a")) << "an addition that was not moved";
}

TEST_F(MoveJournalTest, PutsBackWhatWasNotDeleted)
{
    const std::string temporary = "~0123456789abcdef0123456789abcdef.tmp";
    fs::rename(m_disk.folder() / "App", m_disk.folder() / temporary);
    leave("App", temporary);
    ServerTemplates().getCount();
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
}

// The last change is a move of which the database has the id: a program that died after that.
TEST_F(MoveJournalTest, LeavesWhatWasCommitted)
{
    FaultyFiles files;
    ApplicationStore store(TessaroStore::instance(), TessaroStore::machinePlace(), files);
    // The move itself, and then the removal of the journal fails.
    files.failAt(2);
    store.renameTemplate(m_application, L"a.xsl", L"b.xsl");
    ASSERT_TRUE(fs::exists(journal()));
    ServerTemplates().getCount();
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/b.xsl=a"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/b.xsl"));
}

TEST_F(MoveJournalTest, OverwritesNothing)
{
    makeFile("New/x");
    leave("App", "New");
    ServerTemplates().getCount();
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a", "New/", "New/x=content"));
    EXPECT_FALSE(fs::exists(journal()));
}

TEST_F(MoveJournalTest, ThatIsForgedMovesNothing)
{
    const fs::path outside = m_disk.outside().folder() / "precious";
    std::ofstream(outside) << "precious";
    std::ofstream(m_disk.folder().parent_path() / "precious") << "precious";
    makeFile("App/in/a/deep/file");
    const std::pair<std::string, std::string> moves[] = {
        {"x", "..\\precious"},
        {"..\\x", "App\\a.xsl"},
        {"x", outside.string()},
        {outside.string(), "App\\a.xsl"},
        {"x", "App/../../precious"},
        {"x", "App\\..\\..\\precious"},
        {"x", ""},
        {"", "App\\a.xsl"},
        {"App\\nul", "App\\a.xsl"},
        {"x", "App\\\\a.xsl"},
        {"x", "App\\in\\a\\deep"},
        {"App\\in\\a\\x", "App\\a.xsl"},
        {"x\nApp\\a.xsl", "App\\a.xsl"},
    };
    const auto before = m_disk.files();
    for (const auto& [from, to] : moves)
    {
        leave(from, to);
        ServerTemplates().getCount();
        EXPECT_EQ(before, m_disk.files()) << from << " to " << to;
        EXPECT_TRUE(fs::exists(outside)) << from << " to " << to;
        EXPECT_TRUE(fs::exists(m_disk.folder().parent_path() / "precious")) << from << " to " << to;
        EXPECT_FALSE(fs::exists(journal()));
    }
}

TEST_F(MoveJournalTest, ThatIsNoTextIsPassedOver)
{
    for (const char* const content : {"", "\n", "x", "\xFF\xFE\n\n\n\n\n"})
    {
        std::ofstream(journal(), std::ios::binary) << content;
        EXPECT_EQ(1, ServerTemplates().getCount());
        EXPECT_FALSE(fs::exists(journal()));
    }
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
}

// Undoing it would fail for ever, and with it every change.
TEST_F(MoveJournalTest, ThatMovesAFolderIntoItselfIsPassedOver)
{
    for (const char* const inside : {"App\\x", "APP\\x\\y"})
    {
        leave(inside, "App");
        m_application.renameTemplate(m_application.getAt(0), L"b.xsl");
        EXPECT_FALSE(fs::exists(journal())) << inside;
        m_application.renameTemplate(m_application.getAt(0), L"a.xsl");
    }
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
}

// Another program is in the middle of a change: it holds the right to write, and its journal is its own business.
TEST_F(MoveJournalTest, IsLeftToAProgramThatIsChanging)
{
    fs::rename(m_disk.folder() / "App", m_disk.folder() / "New");
    leave("App", "New");
    OtherProgram other(database());
    other.execute("BEGIN IMMEDIATE");
    FaultyDisk disk;
    bool hasWaited = false;
    disk.onWait([&] { hasWaited = true; });
    EXPECT_EQ(1, ServerTemplates().getCount());
    EXPECT_FALSE(hasWaited) << "reading waits for nobody";
    EXPECT_TRUE(fs::exists(journal()));
    EXPECT_THAT(m_disk.files(), ElementsAre("New/", "New/a.xsl=a"));
    other.execute("ROLLBACK");
    ServerTemplates().getCount();
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
}

TEST_F(MoveJournalTest, ReportsWhatCannotBeUndoneToTheNextChangeOnly)
{
    fs::rename(m_disk.folder() / "App", m_disk.folder() / "New");
    leave("App", "New");
    FaultyFiles files;
    ApplicationStore store(TessaroStore::instance(), TessaroStore::machinePlace(), files);
    files.failAt(1);
    EXPECT_EQ(1u, store.get()->applications.size());
    EXPECT_EQ(1, files.operations());
    files.failAt(1);
    const String message = refusal([&] { store.removeApplication(L"App"); });
    EXPECT_TRUE(message.startsWith(L"An interrupted change of \"" + m_disk.path(L"New") + L"\" cannot be undone: "))
        << message.toUtf8();
}

TEST_F(MoveJournalTest, NeedsItsPlaceInTheDatabase)
{
    OtherProgram(database()).execute("DELETE FROM last_move");
    EXPECT_EQ(L"The database \"" + database() + L"\" is damaged (last_move is empty). Please restore it from a backup.",
              refusal([&] { m_application.renameTemplate(m_application.getAt(0), L"b.xsl"); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl"));
}

// Copies that were never moved, because the program died while it was copying.
TEST_F(MoveJournalTest, OldLeftoversAreRemovedByALaterAddition)
{
    const std::string old = "App/~0123456789abcdef0123456789abcdef.tmp";
    const std::string fresh = "App/~fedcba9876543210fedcba9876543210.tmp";
    const std::string other = "App/~other.tmp";
    const auto twoHoursAgo = fs::file_time_type::clock::now() - std::chrono::hours(2);
    for (const std::string& name : {old, fresh, other})
    {
        makeFile(name);
        fs::last_write_time(m_disk.folder() / name, name == fresh ? fs::file_time_type::clock::now() : twoHoursAgo);
    }
    m_application.addNewTemplate(m_disk.templateFile(L"b.xsl", "b"));
    EXPECT_THAT(m_disk.files(),
                ElementsAre("App/", "App/a.xsl=a", "App/b.xsl=b", fresh + "=content", other + "=content"));
}

TEST_F(MoveJournalTest, LeavesNothingBehindWhenAnAdditionIsRefused)
{
    makeFile("App/b.xsl", "by hand");
    EXPECT_NE(L"accepted", refusal([&] { m_application.addNewTemplate(m_disk.templateFile(L"b.xsl")); }));
    EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a", "App/b.xsl=by hand"));
    EXPECT_FALSE(fs::exists(journal()));
}

// A copy may take long. Meanwhile others can change what they like.
TEST_F(MoveJournalTest, CopiesWithoutHoldingTheDatabase)
{
    class Copying final : public Core::IO::FileTree
    {
      public:
        explicit Copying(const String& database) : m_database(database) {}
        Kind kind(const String& path) const override { return system().kind(path); }
        Core::SystemError copy(const String& from, const String& to) const override
        {
            OtherProgram other(m_database);
            other.execute("BEGIN IMMEDIATE; UPDATE application SET engine = 2; COMMIT");
            return system().copy(from, to);
        }
        Core::SystemError makeFolder(const String& path) const override { return system().makeFolder(path); }
        Core::SystemError move(const String& from, const String& to) const override { return system().move(from, to); }
        bool remove(const String& path) const override { return system().remove(path); }
        void removeOld(const String&, bool (*)(const String&)) const override {}

      private:
        String m_database;
    };
    const Copying files(database());
    ApplicationStore store(TessaroStore::instance(), TessaroStore::machinePlace(), files);
    store.addTemplate(m_application, m_disk.templateFile(L"b.xsl").getTemplatePath());
    EXPECT_THAT(m_disk.records(), ElementsAre("App engine=2 users=", "App/a.xsl", "App/b.xsl"));
}

} // namespace
