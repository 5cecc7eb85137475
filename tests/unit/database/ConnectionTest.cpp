#include "brimlow/database/Connection.h"
#include "FaultyDisk.h"
#include "NumberTable.h"
#include "OtherProgram.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/database/Statement.h"
#include "brimlow/database/Transaction.h"
#include "brimlow/system/FileSystem.h"
#include "refusal.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <limits>
#include <string>

namespace
{

using namespace Database;

class ConnectionTest : public testing::Test
{
  protected:
    const TemporaryFolder m_disk;
    const Core::String m_path = m_disk.path(L"Numbers.db");
    const DatabaseFile m_file = NumberTable::at(m_path);

    void makeWithNumber(int number) const
    {
        Connection connection = Connection::openOrCreate(m_file);
        NumberTable::add(connection, number);
    }

    std::vector<int> numbers() const
    {
        Connection connection = Connection::openOrCreate(m_file);
        return NumberTable::load(connection);
    }

    Core::String refusalToOpen() const
    {
        return refusal([this] { Connection::openExisting(m_file); });
    }

    Core::String refusalToRead() const
    {
        return refusal([this] { NumberTable::load(*Connection::openExisting(m_file)); });
    }

    Core::String refusalToChange() const
    {
        return refusal(
            [this]
            {
                Connection connection = Connection::openOrCreate(m_file);
                Transaction transaction(connection, Transaction::Kind::write);
                NumberTable::add(connection, 2);
                transaction.commit();
            });
    }

    Core::String sentence(const wchar_t* end) const { return L"The database \"" + m_path + L"\" " + end; }

    std::string content() const { return m_disk.read(L"Numbers.db"); }

    std::string number(const char* pragma) const
    {
        Connection connection = Connection::openOrCreate(m_file);
        Statement statement(connection, pragma);
        statement.step();
        return statement.getText(0).toUtf8();
    }
};

TEST_F(ConnectionTest, OpensNothingWhereNothingIs)
{
    EXPECT_FALSE(Connection::openExisting(m_file));
    EXPECT_FALSE(Connection::openExisting(NumberTable::at(m_disk.path(L"a\\b.db"))));
    EXPECT_TRUE(m_disk.names().empty());
}

TEST_F(ConnectionTest, MakesTheFileAndItsFolders)
{
    const DatabaseFile deep = NumberTable::at(Core::IO::FileSystem::combinePath(m_disk.path(L"a"), L"b\\Numbers.db"));
    {
        Connection connection = Connection::openOrCreate(deep);
        NumberTable::add(connection, 7);
    }
    EXPECT_EQ(std::vector{7}, NumberTable::load(*Connection::openExisting(deep)));
}

TEST_F(ConnectionTest, LeavesOnlyTheDatabaseBehind)
{
    makeWithNumber(1);
    EXPECT_EQ(std::vector<Core::String>{L"Numbers.db"}, m_disk.names());
}

TEST_F(ConnectionTest, SetsTheDatabaseUp)
{
    EXPECT_EQ("delete", number("PRAGMA journal_mode"));
    EXPECT_EQ("2", number("PRAGMA synchronous"));
    EXPECT_EQ("1", number("PRAGMA foreign_keys"));
    EXPECT_EQ("0", number("PRAGMA trusted_schema"));
    EXPECT_EQ("1", number("PRAGMA cell_size_check"));
    EXPECT_EQ("UTF-16le", number("PRAGMA encoding"));
    EXPECT_EQ("1", number("PRAGMA user_version"));
    EXPECT_EQ("0", number("PRAGMA busy_timeout"));
}

TEST_F(ConnectionTest, WaitsFiveSecondsForOthersUnlessToldOtherwise)
{
    EXPECT_EQ(std::chrono::seconds(5), (DatabaseFile{m_path, m_file.schema}).busyTimeout);
    DatabaseFile patient = m_file;
    patient.busyTimeout = std::chrono::seconds(5);
    Connection connection = Connection::openOrCreate(patient);
    Statement timeout(connection, "PRAGMA busy_timeout");
    timeout.step();
    EXPECT_EQ(5000, timeout.getInt(0));
}

TEST_F(ConnectionTest, TakesAnEmptyFileForANewDatabase)
{
    m_disk.write(L"Numbers.db", "");
    makeWithNumber(3);
    EXPECT_EQ(std::vector{3}, numbers());
}

TEST_F(ConnectionTest, UpgradesAnOlderDatabaseOnce)
{
    makeWithNumber(5);
    DatabaseFile newer = m_file;
    newer.schema = {3, [](Connection& connection, int from)
                    {
                        EXPECT_EQ(1, from);
                        connection.execute("ALTER TABLE number ADD COLUMN name TEXT");
                    }};
    for (int times = 0; times < 2; ++times)
    {
        std::optional<Connection> connection = Connection::openExisting(newer);
        Statement row(*connection, "SELECT value, name FROM number");
        EXPECT_TRUE(row.step());
        EXPECT_EQ(5, row.getInt(0));
    }
    EXPECT_EQ(
        L"The database \"" + m_path +
            L"\" was written by a newer version of the product (format 3, and not 1). Please use the newer version.",
        refusalToOpen());
}

TEST_F(ConnectionTest, AnUpgradeThatFailsLeavesTheDatabaseAsItWas)
{
    makeWithNumber(5);
    DatabaseFile newer = m_file;
    newer.schema = {2, [](Connection& connection, int)
                    {
                        connection.execute("ALTER TABLE number ADD COLUMN name TEXT");
                        connection.execute("NONSENSE");
                    }};
    EXPECT_EQ(sentence(L"cannot be used: near \"NONSENSE\": syntax error."),
              refusal([&] { Connection::openExisting(newer); }));
    EXPECT_EQ(std::vector{5}, numbers());
}

TEST_F(ConnectionTest, RefusesWhatIsNoDatabase)
{
    const std::string garbage(5000, 'x');
    m_disk.write(L"Numbers.db", garbage);
    EXPECT_EQ(sentence(L"is damaged (file is not a database). Please restore it from a backup."), refusalToOpen());
    EXPECT_EQ(sentence(L"is damaged (file is not a database). Please restore it from a backup."), refusalToChange());
    EXPECT_EQ(garbage, content());
}

TEST_F(ConnectionTest, RefusesATruncatedDatabase)
{
    makeWithNumber(1);
    const std::string whole = content();
    m_disk.write(L"Numbers.db", whole.substr(0, whole.size() - 4096));
    EXPECT_EQ(sentence(L"is damaged (database disk image is malformed). Please restore it from a backup."),
              refusalToRead());
}

TEST_F(ConnectionTest, RefusesADamagedPage)
{
    makeWithNumber(1);
    std::string damaged = content();
    // The second page holds the table of the numbers; its first byte is the page's kind.
    damaged[4096] = 'x';
    m_disk.write(L"Numbers.db", damaged);
    EXPECT_EQ(sentence(L"is damaged (database disk image is malformed). Please restore it from a backup."),
              refusalToRead());
}

TEST_F(ConnectionTest, RefusesADatabaseOfSomethingElse)
{
    OtherProgram(m_path).execute("PRAGMA user_version = 1; CREATE TABLE other (x)");
    EXPECT_EQ(sentence(L"cannot be used: no such table: number."), refusalToRead());
}

TEST_F(ConnectionTest, OpensForWritingWhatAnotherProgramMadeInBetween)
{
    makeWithNumber(1);
    FaultyDisk disk;
    disk.setReadOnly(1);
    EXPECT_EQ(L"accepted", refusalToChange());
}

TEST_F(ConnectionTest, RefusesToChangeAReadOnlyDatabaseButReadsIt)
{
    makeWithNumber(1);
    FaultyDisk disk;
    disk.setReadOnly(std::numeric_limits<int>::max());
    EXPECT_EQ(std::vector{1}, numbers());
    EXPECT_EQ(L"The database \"" + m_path + L"\" cannot be changed: it is read-only.", refusalToChange());
}

TEST_F(ConnectionTest, SaysWhyAFileCannotBeOpened)
{
    std::filesystem::create_directory(m_disk.folder() / "Numbers.db");
#ifdef _WIN32
    const Core::String reason = L"it is a folder";
#else
    const Core::String reason = Core::describeSystemError(EISDIR);
#endif
    EXPECT_EQ(L"The database \"" + m_path + L"\" cannot be opened: " + reason + L".", refusalToOpen());
}

TEST_F(ConnectionTest, RefusesToReadWhileAnotherProgramWritesItDown)
{
    makeWithNumber(1);
    OtherProgram other(m_path);
    other.execute("BEGIN EXCLUSIVE");
    const Core::String busy = sentence(L"is in use by another program. Please try again.");
    EXPECT_EQ(busy, refusalToRead());
    EXPECT_EQ(busy, refusalToChange());
    other.execute("COMMIT");
    EXPECT_EQ(std::vector{1}, numbers());
}

TEST_F(ConnectionTest, ReadsButDoesNotChangeWhileAnotherProgramPreparesAChange)
{
    makeWithNumber(1);
    OtherProgram other(m_path);
    other.execute("BEGIN IMMEDIATE; INSERT INTO number (value) VALUES (9)");
    EXPECT_EQ(std::vector{1}, numbers());
    EXPECT_EQ(sentence(L"is in use by another program. Please try again."), refusalToChange());
    other.execute("COMMIT");
    EXPECT_EQ((std::vector{1, 9}), numbers());
}

TEST_F(ConnectionTest, DoesNotChangeWhileAnotherProgramReads)
{
    makeWithNumber(1);
    OtherProgram other(m_path);
    other.execute("BEGIN; SELECT * FROM number");
    EXPECT_EQ(sentence(L"is in use by another program. Please try again."), refusalToChange());
    other.execute("COMMIT");
    EXPECT_EQ(std::vector{1}, numbers());
}

TEST_F(ConnectionTest, WaitsForTheOtherProgram)
{
    makeWithNumber(1);
    OtherProgram other(m_path);
    other.execute("BEGIN EXCLUSIVE; INSERT INTO number (value) VALUES (9)");
    FaultyDisk disk;
    int waits = 0;
    disk.onWait(
        [&]
        {
            if (++waits == 3)
            {
                other.execute("COMMIT");
            }
        });
    DatabaseFile patient = m_file;
    patient.busyTimeout = std::chrono::seconds(5);
    EXPECT_EQ((std::vector{1, 9}), NumberTable::load(*Connection::openExisting(patient)));
    EXPECT_EQ(3, waits);
}

TEST_F(ConnectionTest, SaysThatTheDiskIsFull)
{
    makeWithNumber(1);
    FaultyDisk disk;
    disk.failAt(1, FaultyDisk::Fault::full);
    EXPECT_EQ(sentence(L"cannot be changed: the disk is full."), refusalToChange());
    disk.failAt(0, FaultyDisk::Fault::full);
    EXPECT_EQ(std::vector{1}, numbers());
}

TEST_F(ConnectionTest, SaysThatTheDiskFails)
{
    makeWithNumber(1);
    FaultyDisk disk;
    disk.failAt(1, FaultyDisk::Fault::error);
    EXPECT_TRUE(refusalToChange().startsWith(L"The database \"" + m_path + L"\" cannot be read or written: "));
    EXPECT_EQ(std::vector{1}, numbers());
}

TEST_F(ConnectionTest, ATransactionThatIsNotCommittedChangesNothing)
{
    makeWithNumber(1);
    {
        Connection connection = Connection::openOrCreate(m_file);
        Transaction transaction(connection, Transaction::Kind::write);
        NumberTable::add(connection, 2);
    }
    EXPECT_EQ(std::vector{1}, numbers());
}

TEST_F(ConnectionTest, LeavesTheFileToOthersBetweenTwoOperations)
{
    makeWithNumber(1);
    std::filesystem::rename(m_disk.folder() / "Numbers.db", m_disk.folder() / "Moved.db");
    EXPECT_FALSE(Connection::openExisting(m_file));
    EXPECT_TRUE(std::filesystem::remove(m_disk.folder() / "Moved.db"));
}

} // namespace
