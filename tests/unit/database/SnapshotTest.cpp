#include "brimlow/database/Snapshot.h"
#include "FaultyDisk.h"
#include "NumberTable.h"
#include "OtherProgram.h"
#include "TemporaryFolder.h"
#include "brimlow/database/DatabaseException.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace
{

using namespace Database;
using Numbers = std::vector<int>;

int loads = 0;

Numbers countedLoad(const Connection& connection)
{
    ++loads;
    return NumberTable::load(connection);
}

class SnapshotTest : public testing::Test
{
  protected:
    SnapshotTest() { loads = 0; }

    Snapshot<Numbers>::Pointer get() { return m_snapshot.get(m_file); }

    void add(Snapshot<Numbers>::Pointer& held, int number)
    {
        m_snapshot.change(
            m_file, held, [&](Connection& connection) { NumberTable::add(connection, number); },
            [&](Numbers& numbers) { numbers.push_back(number); });
    }

    void add(int number)
    {
        Snapshot<Numbers>::Pointer held = get();
        add(held, number);
    }

    const TemporaryFolder m_disk;
    const Core::String m_path = m_disk.path(L"Numbers.db");
    const DatabaseFile m_file = NumberTable::at(m_path);
    Snapshot<Numbers> m_snapshot{&countedLoad};
};

TEST_F(SnapshotTest, IsEmptyWithoutAFileAndMakesNone)
{
    EXPECT_TRUE(get()->empty());
    EXPECT_TRUE(m_disk.names().empty());
}

TEST_F(SnapshotTest, ReadsOnceAndSharesWhatItRead)
{
    OtherProgram(m_path).execute("");
    add(1);
    const int before = loads;
    const auto first = get();
    const auto second = get();
    EXPECT_EQ(first, second);
    EXPECT_EQ(before, loads);
    EXPECT_EQ(Numbers{1}, *first);
}

TEST_F(SnapshotTest, ItsOwnChangesNeedNoReading)
{
    add(1);
    const int before = loads;
    auto held = get();
    add(held, 2);
    add(held, 3);
    EXPECT_EQ((Numbers{1, 2, 3}), *held);
    EXPECT_EQ(held, get());
    EXPECT_EQ(before, loads);

    Snapshot<Numbers> other(&countedLoad);
    EXPECT_EQ((Numbers{1, 2, 3}), *other.get(m_file));
}

TEST_F(SnapshotTest, TakesOverWhatNobodyElseHolds)
{
    add(1);
    auto held = get();
    // With three numbers there is room for a fourth one.
    add(held, 2);
    add(held, 3);
    const int* const numbers = held->data();
    add(held, 4);
    EXPECT_EQ(numbers, held->data());
}

TEST_F(SnapshotTest, HasAnotherObjectForEachState)
{
    add(1);
    auto held = get();
    const std::weak_ptr<const Numbers> former = held;
    EXPECT_EQ(former.lock(), get());
    add(held, 2);
    EXPECT_EQ(nullptr, former.lock());
    EXPECT_EQ(held, get());
}

TEST_F(SnapshotTest, LeavesTheFormerStateToThoseWhoHoldIt)
{
    add(1);
    auto held = get();
    const auto former = held;
    add(held, 2);
    EXPECT_EQ(Numbers{1}, *former);
    EXPECT_EQ((Numbers{1, 2}), *held);
    // One holds an older state than the other, and changes all the same.
    auto older = former;
    add(older, 3);
    EXPECT_EQ((Numbers{1, 2, 3}), *older);
    EXPECT_EQ((Numbers{1, 2}), *held);
}

TEST_F(SnapshotTest, NoticesWhatAnotherProgramDoes)
{
    add(1);
    EXPECT_EQ(Numbers{1}, *get());
    OtherProgram other(m_path);
    other.execute("INSERT INTO number (value) VALUES (2)");
    EXPECT_EQ((Numbers{1, 2}), *get());
    other.execute("UPDATE number SET value = 3 WHERE value = 1");
    EXPECT_EQ((Numbers{3, 2}), *get());
    other.execute("DELETE FROM number WHERE value = 3");
    EXPECT_EQ(Numbers{2}, *get());
}

TEST_F(SnapshotTest, ChangesOnTopOfWhatAnotherProgramDid)
{
    add(1);
    auto held = get();
    OtherProgram(m_path).execute("INSERT INTO number (value) VALUES (2)");
    add(held, 3);
    EXPECT_EQ((Numbers{1, 2, 3}), *held);
    const int before = loads;
    EXPECT_EQ(held, get());
    EXPECT_EQ(before, loads);
}

TEST_F(SnapshotTest, NoticesThatTheFileWasRemovedOrReplaced)
{
    add(1);
    std::filesystem::copy_file(m_disk.folder() / "Numbers.db", m_disk.folder() / "backup");
    add(2);
    EXPECT_EQ((Numbers{1, 2}), *get());
    std::filesystem::remove(m_disk.folder() / "Numbers.db");
    EXPECT_EQ(Numbers{}, *get());
    std::filesystem::copy_file(m_disk.folder() / "backup", m_disk.folder() / "Numbers.db");
    EXPECT_EQ(Numbers{1}, *get());

    // A file that went through as many changes as the one before it is another one still.
    std::filesystem::remove(m_disk.folder() / "Numbers.db");
    add(5);
    const int before = loads;
    std::filesystem::remove(m_disk.folder() / "Numbers.db");
    Snapshot<Numbers> other(&countedLoad);
    auto held = other.get(m_file);
    other.change(
        m_file, held, [](Connection& connection) { NumberTable::add(connection, 6); },
        [](Numbers& numbers) { numbers.push_back(6); });
    EXPECT_EQ(Numbers{6}, *get());
    EXPECT_LT(before, loads);
}

TEST_F(SnapshotTest, AChangeThatIsRefusedChangesNothing)
{
    add(1);
    auto held = get();
    const auto refuse = [&]
    {
        m_snapshot.change(
            m_file, held,
            [](Connection& connection)
            {
                NumberTable::add(connection, 2);
                throw std::runtime_error("refused");
            },
            [](Numbers& numbers) { numbers.push_back(2); });
    };
    EXPECT_THROW(refuse(), std::runtime_error);
    EXPECT_EQ(Numbers{1}, *held);
    EXPECT_EQ(Numbers{1}, *get());
}

TEST_F(SnapshotTest, ReadsAnewWhenTheChangeInMemoryFails)
{
    add(1);
    auto held = get();
    const auto forget = [&]
    {
        m_snapshot.change(
            m_file, held, [](Connection& connection) { NumberTable::add(connection, 2); },
            [](Numbers&) { throw std::bad_alloc(); });
    };
    EXPECT_THROW(forget(), std::bad_alloc);
    EXPECT_EQ((Numbers{1, 2}), *get());
}

TEST_F(SnapshotTest, ReadsEveryTimeWhenSomebodyRemovedTheMark)
{
    add(1);
    OtherProgram other(m_path);
    other.execute("DELETE FROM content");
    EXPECT_EQ(Numbers{1}, *get());
    other.execute("INSERT INTO number (value) VALUES (2)");
    EXPECT_EQ((Numbers{1, 2}), *get());
    add(3);
    EXPECT_EQ((Numbers{1, 2, 3}), *get());
}

TEST_F(SnapshotTest, ServesSeveralThreads)
{
    DatabaseFile patient = m_file;
    patient.busyTimeout = std::chrono::minutes(1);
    std::vector<std::thread> threads;
    for (int first : {0, 100, 200})
    {
        threads.emplace_back(
            [&, first]
            {
                for (int number = first; number < first + 5; ++number)
                {
                    auto held = m_snapshot.get(patient);
                    m_snapshot.change(
                        patient, held, [&](Connection& connection) { NumberTable::add(connection, number); },
                        [&](Numbers& numbers) { numbers.push_back(number); });
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(15u, get()->size());
    Snapshot<Numbers> other(&countedLoad);
    EXPECT_EQ(*other.get(m_file), *get());
}

} // namespace
