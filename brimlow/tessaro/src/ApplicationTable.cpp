#include "ApplicationTable.h"

#include "names.h"

#include "brimlow/database/Statement.h"

namespace Tessaro
{

using Core::String;
using Database::Connection;
using Database::Statement;

namespace
{

std::optional<String> legalName(Statement& row, const StoredId& id)
{
    row.bind(id.row, id.identity);
    if (!row.step() || nameRefusal(row.getText(0)))
    {
        return std::nullopt;
    }
    return row.getText(0);
}

} // namespace

// The order of the rows is the order in which they were added. The keys are what names are compared by; that no two
// things in one folder have a name in common holds for every program that writes. Engine 1 is MSXML.
void ApplicationTable::create(Connection& connection)
{
    connection.execute("CREATE TABLE application ("
                       " id INTEGER PRIMARY KEY,"
                       " identity BLOB NOT NULL DEFAULT (randomblob(16)),"
                       " name TEXT NOT NULL,"
                       " name_key TEXT NOT NULL UNIQUE,"
                       " engine INTEGER NOT NULL DEFAULT 1);"
                       "CREATE TABLE template ("
                       " id INTEGER PRIMARY KEY,"
                       " application INTEGER NOT NULL REFERENCES application ON DELETE CASCADE,"
                       " name TEXT NOT NULL,"
                       " name_key TEXT NOT NULL,"
                       " UNIQUE (application, name_key));"
                       "CREATE TABLE resource_folder ("
                       " id INTEGER PRIMARY KEY,"
                       " identity BLOB NOT NULL DEFAULT (randomblob(16)),"
                       " application INTEGER NOT NULL REFERENCES application ON DELETE CASCADE,"
                       " name TEXT NOT NULL,"
                       " name_key TEXT NOT NULL,"
                       " UNIQUE (application, name_key));"
                       "CREATE TABLE resource_file ("
                       " id INTEGER PRIMARY KEY,"
                       " folder INTEGER NOT NULL REFERENCES resource_folder ON DELETE CASCADE,"
                       " name TEXT NOT NULL,"
                       " name_key TEXT NOT NULL,"
                       " UNIQUE (folder, name_key));"
                       "CREATE TABLE access ("
                       " application INTEGER NOT NULL REFERENCES application ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " user TEXT NOT NULL,"
                       " PRIMARY KEY (application, position)) WITHOUT ROWID");
}

std::optional<String> ApplicationTable::nameOf(const Connection& connection, const StoredId& application)
{
    Statement row(connection, "SELECT name FROM application WHERE id = ?1 AND identity = ?2");
    return legalName(row, application);
}

std::optional<String> ApplicationTable::nameOfFolder(const Connection& connection, const StoredId& folder)
{
    Statement row(connection, "SELECT name FROM resource_folder WHERE id = ?1 AND identity = ?2");
    return legalName(row, folder);
}

void ApplicationTable::setEngine(Connection& connection, std::int64_t application, XsltEngine engine)
{
    Statement(connection, "UPDATE application SET engine = ?2 WHERE id = ?1")
        .bind(application, static_cast<int>(engine))
        .step();
}

std::vector<String> ApplicationTable::getUsers(const Connection& connection, std::int64_t application)
{
    std::vector<String> users;
    Statement row(connection, "SELECT user FROM access WHERE application = ?1 ORDER BY position");
    row.bind(application);
    while (row.step())
    {
        users.push_back(row.getText(0));
    }
    return users;
}

void ApplicationTable::setUsers(Connection& connection, std::int64_t application, const std::vector<String>& users)
{
    Statement(connection, "DELETE FROM access WHERE application = ?1").bind(application).step();
    Statement insert(connection, "INSERT INTO access (application, position, user) VALUES (?1, ?2, ?3)");
    int position = 0;
    for (const String& user : users)
    {
        insert.bind(application, position++, user);
        insert.step();
    }
}

} // namespace Tessaro
