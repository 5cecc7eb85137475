#include "HotFolderStore.h"
#include "FaultyDisk.h"
#include "HotFolderTable.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/database/Statement.h"
#include "brimlow/database/Transaction.h"
#include "refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace
{

using namespace HotFolders;
using Paths = std::vector<std::string>;

HotFolder hotFolder(const std::wstring& path)
{
    HotFolder folder;
    folder.setFolder(path);
    folder.setOutputFolder(L"C:\\Out");
    ActionList actions(2);
    actions[1].setType(ActionType::MoveInputFile);
    actions[1].setDestinationPath(L"C:\\Done");
    folder.setOnSuccessActionList(actions);
    return folder;
}

class HotFolderStoreTest : public testing::Test
{
  protected:
    HotFolderStoreTest() { m_file.busyTimeout = std::chrono::milliseconds(0); }

    void add(const std::wstring& path)
    {
        auto list = m_store.get(m_file);
        m_store.add(m_file, list, hotFolder(path));
    }

    // One change of each kind to the hot folders a, b, c.
    void changeAll()
    {
        auto list = m_store.get(m_file);
        m_store.remove(m_file, list, list->at(0));
        HotFolder second = list->at(0);
        second.setFolder(L"C:\\b2");
        second.setOnSuccessActionList({});
        m_store.update(m_file, list, second);
        m_store.add(m_file, list, hotFolder(L"C:\\d"));
    }

    // What another program finds.
    Paths stored() const
    {
        HotFolderStore other;
        Paths paths;
        for (const HotFolder& folder : *other.get(m_file))
        {
            paths.push_back(folder.getFolder().toUtf8());
            EXPECT_EQ(folder.getFolder() == L"C:\\b2" ? 0u : 2u, folder.getOnSuccessActionList().size());
        }
        return paths;
    }

    void expectSound() const
    {
        const auto connection = Database::Connection::openExisting(m_file);
        Database::Statement check(*connection, "PRAGMA integrity_check");
        ASSERT_TRUE(check.step());
        EXPECT_EQ(L"ok", check.getText(0));
        Database::Statement orphans(*connection, "PRAGMA foreign_key_check");
        EXPECT_FALSE(orphans.step());
    }

    // Puts the database with a, b and c in place, and this process's memory of it right.
    void reset()
    {
        namespace fs = std::filesystem;
        fs::remove(m_disk.folder() / "HotFolders.db-journal");
        if (!fs::exists(m_disk.folder() / "original"))
        {
            add(L"C:\\a");
            add(L"C:\\b");
            add(L"C:\\c");
            fs::copy_file(m_disk.folder() / "HotFolders.db", m_disk.folder() / "original");
        }
        fs::remove(m_disk.folder() / "HotFolders.db");
        fs::copy_file(m_disk.folder() / "original", m_disk.folder() / "HotFolders.db");
        m_store.get(m_file);
    }

    const TemporaryFolder m_disk;
    Database::DatabaseFile m_file{m_disk.path(L"HotFolders.db"), HotFolderTable::schema};
    HotFolderStore m_store;
};

// The states between the three changes: each is whole, and there is no other.
const Paths states[] = {
    {"C:\\a", "C:\\b", "C:\\c"},
    {"C:\\b", "C:\\c"},
    {"C:\\b2", "C:\\c"},
    {"C:\\b2", "C:\\c", "C:\\d"},
};

TEST_F(HotFolderStoreTest, WaitsFiveSecondsForOtherProgramsOnThisMachine)
{
    EXPECT_EQ(std::chrono::seconds(5), HotFolderStore::machineDatabase().busyTimeout);
}

TEST_F(HotFolderStoreTest, IsWholeWhicheverOperationOfTheDiskFails)
{
    int failing = 1;
    for (bool done = false; !done; ++failing)
    {
        reset();
        {
            FaultyDisk disk;
            disk.failAt(failing, FaultyDisk::Fault::error);
            const Core::String message = refusal([this] { changeAll(); });
            done = message == L"accepted";
            EXPECT_EQ(done, disk.operations() < failing) << message.toUtf8();
        }
        expectSound();
        EXPECT_THAT(states, testing::Contains(stored())) << failing;
        // What is in memory is what is stored.
        const auto list = m_store.get(m_file);
        EXPECT_EQ(stored().size(), list->size());
    }
    EXPECT_EQ(states[3], stored());
    EXPECT_LT(20, failing);
}

TEST_F(HotFolderStoreTest, IsWholeWheneverTheDiskBecomesFull)
{
    int failing = 1;
    for (bool done = false; !done; ++failing)
    {
        reset();
        {
            FaultyDisk disk;
            disk.failAt(failing, FaultyDisk::Fault::full);
            const Core::String message = refusal([this] { changeAll(); });
            done = message == L"accepted";
            if (!done)
            {
                EXPECT_EQ(L"The database \"" + m_file.path + L"\" cannot be changed: the disk is full.", message);
            }
        }
        expectSound();
        EXPECT_THAT(states, testing::Contains(stored())) << failing;
    }
    EXPECT_EQ(states[3], stored());
    EXPECT_LT(20, failing);
}

#ifndef _WIN32
TEST_F(HotFolderStoreTest, LosesNothingWhenTwoProcessesAddAtOnce)
{
    m_file.busyTimeout = std::chrono::minutes(1);
    constexpr int each = 10;
    const auto addAll = [this](wchar_t letter)
    {
        for (int number = 0; number < each; ++number)
        {
            add(std::wstring(L"C:\\") + letter + std::to_wstring(number));
        }
    };
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
    {
        addAll(L'x');
        std::_Exit(0);
    }
    addAll(L'y');
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
    EXPECT_EQ(2u * each, stored().size());
    EXPECT_EQ(2u * each, m_store.get(m_file)->size());
}
#endif

TEST_F(HotFolderStoreTest, LosesNothingWhenTwoProgramsAddAtOnce)
{
    m_file.busyTimeout = std::chrono::minutes(1);
    constexpr int each = 10;
    const auto addAll = [this](HotFolderStore& store, wchar_t letter)
    {
        auto list = store.get(m_file);
        for (int number = 0; number < each; ++number)
        {
            store.add(m_file, list, hotFolder(std::wstring(L"C:\\") + letter + std::to_wstring(number)));
        }
    };
    HotFolderStore otherStore;
    std::thread other([&] { addAll(otherStore, L'x'); });
    addAll(m_store, L'y');
    other.join();
    EXPECT_EQ(2u * each, stored().size());
    EXPECT_EQ(2u * each, m_store.get(m_file)->size());
    EXPECT_EQ(2u * each, otherStore.get(m_file)->size());
}

TEST_F(HotFolderStoreTest, RefusesEveryChangeWhileAnotherProgramChanges)
{
    reset();
    OtherProgram other(m_file.path);
    other.execute("BEGIN IMMEDIATE");
    const Core::String busy = L"The database \"" + m_file.path + L"\" is in use by another program. Please try again.";
    auto list = m_store.get(m_file);
    HotFolder first = list->at(0);
    first.setPageIndex(1);
    EXPECT_EQ(busy, refusal([&] { m_store.add(m_file, list, hotFolder(L"C:\\d")); }));
    EXPECT_EQ(busy, refusal([&] { m_store.update(m_file, list, first); }));
    EXPECT_EQ(busy, refusal([&] { m_store.remove(m_file, list, first); }));
    EXPECT_EQ(3u, list->size());
    EXPECT_EQ(0, list->at(0).getPageIndex());
    other.execute("ROLLBACK");
    m_store.update(m_file, list, first);
    EXPECT_EQ(1, list->at(0).getPageIndex());
}

TEST_F(HotFolderStoreTest, PassesOverActionsOfNoHotFolder)
{
    reset();
    OtherProgram(m_file.path).execute("INSERT INTO action VALUES (0, 0, 0, 1, '', ''), (99, 0, 0, 1, '', '')");
    EXPECT_EQ(states[0], stored());
}

// The changes, and what a page is: a change reads the way down to what it changes, and no more.
TEST_F(HotFolderStoreTest, ChangesCostWhatTheyChangeAndNotWhatIsStored)
{
    constexpr int count = 10'000;
    {
        Database::Connection connection = Database::Connection::openOrCreate(m_file);
        Database::Transaction transaction(connection, Database::Transaction::Kind::write);
        for (int number = 0; number < count; ++number)
        {
            HotFolderTable::add(connection, hotFolder(L"C:\\Folder " + std::to_wstring(number)));
        }
        transaction.commit();
    }
    auto list = m_store.get(m_file);
    ASSERT_EQ(static_cast<std::size_t>(count), list->size());
    EXPECT_EQ(L"C:\\Folder 9999", list->back().getFolder());
    EXPECT_EQ(L"C:\\Done", list->at(5000).getOnSuccessActionList().at(1).getDestinationPath());

    FaultyDisk disk;
    const auto readsOf = [&](const std::function<void()>& operation)
    {
        const int before = disk.reads();
        operation();
        return disk.reads() - before;
    };
    EXPECT_GT(20, readsOf([&] { m_store.get(m_file); }));
    HotFolder middle = list->at(5000);
    middle.setFolder(L"C:\\changed");
    EXPECT_GT(60, readsOf([&] { m_store.update(m_file, list, middle); }));
    EXPECT_GT(60, readsOf([&] { m_store.add(m_file, list, hotFolder(L"C:\\new")); }));
    EXPECT_GT(60, readsOf([&] { m_store.remove(m_file, list, list->at(100)); }));
    EXPECT_GT(20, readsOf([&] { list = m_store.get(m_file); }));
    EXPECT_EQ(L"C:\\changed", list->at(4999).getFolder());
    // And reading everything shows that reads are counted.
    EXPECT_LT(300, readsOf([&] { stored(); }));
}

} // namespace
