#include "ApplicationDisk.h"
#include "ApplicationStore.h"
#include "FaultyDisk.h"
#include "FaultyFiles.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "refusal.h"

#include "brimlow/database/Statement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace
{

namespace fs = std::filesystem;
using namespace Tessaro;
using Core::String;

// What another program finds: the lists, and the files without what is still to be tidied up.
struct State
{
    std::vector<std::string> records;
    std::vector<std::string> files;

    bool operator==(const State&) const = default;
};

void PrintTo(const State& state, std::ostream* out)
{
    *out << testing::PrintToString(state.records) << " on the disk " << testing::PrintToString(state.files);
}

// Application "App" with the templates a.xsl and b.xsl, the folder "Images" with x.png and y.png, and the folder
// "Texts"; and the application "Other".
class ApplicationFaultTest : public testing::Test
{
  protected:
    struct Change
    {
        const char* name;
        std::function<void(ApplicationStore&)> make;
    };

    ApplicationFaultTest()
    {
        ServerApplication application = m_disk.add(L"App", {L"Guest"});
        application.addNewTemplate(m_disk.templateFile(L"a.xsl", "a"));
        application.addNewTemplate(m_disk.templateFile(L"b.xsl", "b"));
        application.addNewResource(L"Images");
        application.addNewResource(L"Texts");
        ResourcesFolder images = application.getResourceFolderAt(0);
        images.addResourceFile(m_disk.resourceFile(L"x.png", "x"));
        images.addResourceFile(m_disk.resourceFile(L"y.png", "y"));
        m_disk.add(L"Other");
        m_template = m_disk.templateFile(L"new.xsl", "new").getTemplatePath();
        fs::copy(m_disk.folder().parent_path(), original(), fs::copy_options::recursive);
    }

    fs::path original() const { return m_disk.outside().folder() / "original"; }

    void reset() const
    {
        fs::remove_all(m_disk.folder().parent_path());
        fs::copy(original(), m_disk.folder().parent_path(), fs::copy_options::recursive);
    }

    // One of each kind.
    std::vector<Change> changes() const
    {
        const auto app = [](auto change)
        {
            return [change](ApplicationStore& store)
            {
                ServerApplication application = store.get()->applications.at(0);
                change(store, application);
            };
        };
        const auto images = [](auto change)
        {
            return [change](ApplicationStore& store)
            {
                ResourcesFolder folder = store.get()->applications.at(0).getResourceFolderAt(0);
                change(store, folder);
            };
        };
        return {
            {"add application",
             [this](ApplicationStore& store)
             {
                 ServerApplication application;
                 application.setApplicationPath(m_disk.path(L"New"));
                 application.setUsers({L"Guest", L"alice"});
                 store.addApplication(application);
             }},
            {"rename application", app(
                                       [](ApplicationStore& store, ServerApplication& application)
                                       {
                                           application.setParser(XsltEngine::DotNet);
                                           application.addUser(L"alice");
                                           store.renameApplication(application, L"Renamed");
                                       })},
            {"delete application", [](ApplicationStore& store) { store.removeApplication(L"App"); }},
            {"update application", app(
                                       [](ApplicationStore& store, ServerApplication& application)
                                       {
                                           application.setParser(XsltEngine::DotNet);
                                           application.addUser(L"alice");
                                           store.updateApplication(application);
                                       })},
            {"add template", app([this](ApplicationStore& store, ServerApplication& application)
                                 { store.addTemplate(application, m_template); })},
            {"rename template", app([](ApplicationStore& store, ServerApplication& application)
                                    { store.renameTemplate(application, L"a.xsl", L"c.xsl"); })},
            {"delete template", app([](ApplicationStore& store, ServerApplication& application)
                                    { store.removeTemplate(application, L"a.xsl"); })},
            {"add folder", app([](ApplicationStore& store, ServerApplication& application)
                               { store.addFolder(application, L"Fonts"); })},
            {"rename folder", app([](ApplicationStore& store, ServerApplication& application)
                                  { store.renameFolder(application, L"Images", L"Pictures"); })},
            {"delete folder", app([](ApplicationStore& store, ServerApplication& application)
                                  { store.removeFolder(application, L"Images"); })},
            {"add file",
             images([this](ApplicationStore& store, ResourcesFolder& folder) { store.addFile(folder, m_template); })},
            {"rename file", images([](ApplicationStore& store, ResourcesFolder& folder)
                                   { store.renameFile(folder, L"x.png", L"z.png"); })},
            {"delete file",
             images([](ApplicationStore& store, ResourcesFolder& folder) { store.removeFile(folder, L"x.png"); })},
        };
    }

    // Reads the records first: that settles what was interrupted.
    State state() const
    {
        State state{ApplicationDisk::records(), m_disk.files()};
        std::erase_if(state.files, [](const std::string& line) { return line.find('~') != std::string::npos; });
        return state;
    }

    State stateAfter(const Change& change) const
    {
        reset();
        ApplicationStore store = ApplicationStore::machine();
        change.make(store);
        return state();
    }

    void expectSettled() const
    {
        const auto connection = Database::Connection::openExisting(TessaroStore::machinePlace().database);
        Database::Statement check(*connection, "PRAGMA integrity_check");
        ASSERT_TRUE(check.step());
        EXPECT_EQ(L"ok", check.getText(0));
        Database::Statement orphans(*connection, "PRAGMA foreign_key_check");
        EXPECT_FALSE(orphans.step());
        EXPECT_FALSE(fs::exists(m_disk.data() / "Tessaro.moving"));
    }

    enum class Outcome
    {
        // The operation that was to fail was not reached any more.
        unharmed,
        accepted,
        refused
    };

    static Outcome outcomeOf(bool isReached, const String& message)
    {
        if (message != L"accepted")
        {
            return Outcome::refused;
        }
        return isReached ? Outcome::accepted : Outcome::unharmed;
    }

    // attempt(change, number) makes the change and lets that operation of the disk fail. Every change, every operation.
    template <class Attempt>
    void expectWholeWhicheverFails(Attempt attempt) const
    {
        int failures = 0;
        const State before = state();
        for (const Change& change : changes())
        {
            const State after = stateAfter(change);
            Outcome outcome = Outcome::refused;
            for (int number = 1; outcome != Outcome::unharmed; ++number)
            {
                SCOPED_TRACE(change.name + (", operation " + std::to_string(number)));
                reset();
                outcome = attempt(change, number);
                const State now = state();
                expectSettled();
                EXPECT_EQ(outcome == Outcome::refused ? before : after, now);
                ++failures;
            }
        }
        EXPECT_LT(30, failures);
    }

    ApplicationDisk m_disk;
    String m_template;
};

TEST_F(ApplicationFaultTest, IsWholeWhicheverOperationOnFilesFails)
{
    expectWholeWhicheverFails(
        [](const Change& change, int number)
        {
            FaultyFiles files;
            files.failAt(number);
            ApplicationStore store(TessaroStore::instance(), TessaroStore::machinePlace(), files);
            const String message = refusal([&] { change.make(store); });
            return outcomeOf(number <= files.operations(), message);
        });
}

TEST_F(ApplicationFaultTest, SaysWhereAFolderCannotBeMade)
{
    FaultyFiles files;
    files.failAt(1);
    ApplicationStore store(TessaroStore::instance(), TessaroStore::machinePlace(), files);
    ServerApplication application;
    application.setApplicationPath(m_disk.path(L"New"));
    EXPECT_TRUE(refusal([&] { store.addApplication(application); })
                    .startsWith(L"A folder cannot be made in \"" + fromPath(m_disk.folder()) + L"\": "));
}

TEST_F(ApplicationFaultTest, IsWholeWhicheverOperationOfTheDatabaseFails)
{
    expectWholeWhicheverFails(
        [](const Change& change, int number)
        {
            FaultyDisk disk;
            disk.failAt(number, FaultyDisk::Fault::error);
            ApplicationStore store = ApplicationStore::machine();
            const String message = refusal([&] { change.make(store); });
            return outcomeOf(number <= disk.operations(), message);
        });
}

TEST_F(ApplicationFaultTest, IsWholeWheneverTheDiskBecomesFull)
{
    expectWholeWhicheverFails(
        [](const Change& change, int number)
        {
            FaultyDisk disk;
            disk.failAt(number, FaultyDisk::Fault::full);
            ApplicationStore store = ApplicationStore::machine();
            const String message = refusal([&] { change.make(store); });
            return outcomeOf(number <= disk.operations(), message);
        });
}

TEST_F(ApplicationFaultTest, WaitsFiveSecondsForOtherPrograms)
{
    EXPECT_EQ(std::chrono::seconds(5), TessaroStore::machinePlace().database.busyTimeout);
}

TEST_F(ApplicationFaultTest, RefusesEveryChangeWhileAnotherProgramChanges)
{
    const State before = state();
    Place place = TessaroStore::machinePlace();
    place.database.busyTimeout = std::chrono::milliseconds(0);
    ApplicationStore store(TessaroStore::instance(), place, Core::IO::FileTree::system());
    OtherProgram other(place.database.path);
    other.execute("BEGIN IMMEDIATE");
    for (const Change& change : changes())
    {
        EXPECT_EQ(L"The database \"" + place.database.path + L"\" is in use by another program. Please try again.",
                  refusal([&] { change.make(store); }))
            << change.name;
        EXPECT_EQ(before, state()) << change.name;
    }
}

// Two programs, with one journal between them.
TEST_F(ApplicationFaultTest, LosesNothingWhenTwoProgramsAddAndDeleteAtOnce)
{
    constexpr int each = 10;
    const auto addAll = [this](const std::wstring& prefix)
    {
        TessaroStore records;
        ApplicationStore store(records, TessaroStore::machinePlace(), Core::IO::FileTree::system());
        ServerApplication application = store.get()->applications.at(0);
        for (int number = 0; number < each; ++number)
        {
            store.addTemplate(application, m_template);
            store.renameTemplate(application, L"new.xsl", prefix + std::to_wstring(number));
            store.addFolder(application, prefix + L"folder");
            store.removeFolder(application, prefix + L"folder");
        }
    };
    // The other one adds a file of another name, so that neither is refused.
    fs::copy_file(toPath(m_template), m_disk.outside().folder() / "other.xsl");
    const auto addOthers = [this]
    {
        TessaroStore records;
        ApplicationStore store(records, TessaroStore::machinePlace(), Core::IO::FileTree::system());
        ServerApplication application = store.get()->applications.at(1);
        for (int number = 0; number < each; ++number)
        {
            store.addTemplate(application, m_disk.outside().path(L"other.xsl"));
            store.renameApplication(application, L"Other" + std::to_wstring(number));
            store.renameTemplate(application, L"other.xsl", L"y" + std::to_wstring(number));
        }
    };
    std::thread other(addOthers);
    addAll(L"x");
    other.join();
    EXPECT_EQ(2 + each, applicationNamed(L"App").getTemplatesCount());
    EXPECT_EQ(each, applicationNamed(L"Other9").getTemplatesCount());
    const State now = state();
    expectSettled();
    EXPECT_EQ(now.files, m_disk.files()) << "nothing temporary is left";
    for (int number = 0; number < each; ++number)
    {
        EXPECT_THAT(now.files, testing::Contains("App/x" + std::to_string(number) + "=new"));
        EXPECT_THAT(now.files, testing::Contains("Other9/y" + std::to_string(number) + "=new"));
    }
}

// A change reads the way down to what it changes, and no more.
TEST_F(ApplicationFaultTest, ChangesCostWhatTheyChangeAndNotWhatIsStored)
{
    OtherProgram(TessaroStore::machinePlace().database.path)
        .execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000)"
                 " INSERT INTO application (name, name_key) SELECT 'more' || i, 'MORE' || i FROM n;"
                 "INSERT INTO template (application, name, name_key)"
                 " SELECT a.id, 't' || b.id, 'T' || b.id FROM application a JOIN application b ON b.id <= 10;"
                 "INSERT INTO access SELECT id, 1, 'alice' FROM application");
    ServerTemplates().getCount();
    ApplicationStore store = ApplicationStore::machine();
    for (const Change& change : changes())
    {
        FaultyDisk disk;
        const int before = disk.reads();
        change.make(store);
        EXPECT_GT(120, disk.reads() - before) << change.name;
    }
}

} // namespace
