#include "brimlow/database/Connection.h"

#include "brimlow/database/DatabaseException.h"
#include "brimlow/database/Statement.h"
#include "brimlow/database/Transaction.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/PrivateFile.h"
#include "brimlow/system/StringFormatStream.h"

#include "failureSentence.h"

#include <sqlite3.h>

namespace Database
{

void Connection::Closer::operator()(sqlite3* database) const noexcept
{
    sqlite3_close_v2(database);
}

std::optional<Connection> Connection::openExisting(const DatabaseFile& file)
{
    Connection connection(file);
    if (!connection.open(file))
    {
        return std::nullopt;
    }
    return connection;
}

Connection Connection::openOrCreate(const DatabaseFile& file)
{
    Connection connection(file);
    if (!connection.open(file))
    {
        Core::IO::makePrivateFile(file.path);
        if (!connection.open(file))
        {
            connection.fail(SQLITE_CANTOPEN);
        }
    }
    return connection;
}

int Connection::openToWrite(const Core::String& path)
{
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    m_database.reset(database);
    return result;
}

bool Connection::open(const DatabaseFile& file)
{
    int result = openToWrite(file.path);
    // SQLite tries to open for reading what it cannot open for writing, and succeeds where another program made the
    // file in between.
    if (result == SQLITE_OK && sqlite3_db_readonly(get(), "main"))
    {
        result = openToWrite(file.path);
    }
    sqlite3* const database = get();
    if (result != SQLITE_OK)
    {
        if (isNotFound(database))
        {
            return false;
        }
        fail(result);
    }
    // Before anything else, so that everything else waits where it must.
    sqlite3_busy_timeout(database, static_cast<int>(file.busyTimeout.count()));
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_FKEY, 1, nullptr);
    // The file may have been made by somebody else: its triggers and views get no dangerous functions, and damage is
    // looked for in every page.
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    execute("PRAGMA cell_size_check = ON; PRAGMA synchronous = FULL");
    upgrade(file.schema);
    return true;
}

int Connection::readVersion()
{
    Statement version(*this, "PRAGMA user_version");
    version.step();
    return version.getInt(0);
}

void Connection::upgrade(const Schema& schema)
{
    if (readVersion() == schema.version)
    {
        return;
    }
    Transaction transaction(*this, Transaction::Kind::write);
    // Another program may have been faster.
    const int from = readVersion();
    if (from > schema.version)
    {
        throw DatabaseException(Core::format(L"The database \"{0}\" was written by a newer version of "
                                             L"the product (format {1}, and not {2}). Please use the "
                                             L"newer version.",
                                             m_path, from, schema.version));
    }
    if (from == schema.version)
    {
        return;
    }
    if (from == 0)
    {
        // The form in which texts are handed over: nothing is converted, and nothing lost.
        execute("PRAGMA encoding = 'UTF-16le'");
    }
    schema.upgrade(*this, from);
    execute(("PRAGMA user_version = " + std::to_string(schema.version)).c_str());
    transaction.commit();
}

void Connection::execute(const char* sql)
{
    if (const int result = sqlite3_exec(get(), sql, nullptr, nullptr, nullptr); result != SQLITE_OK)
    {
        fail(result);
    }
}

void Connection::fail(int result) const
{
    throw DatabaseException(failureSentence(m_path, get(), result));
}

} // namespace Database
