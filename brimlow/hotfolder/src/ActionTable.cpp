#include "ActionTable.h"

namespace HotFolders
{

using Database::Connection;
using Database::Statement;

namespace
{

// When an action is taken. The numbers are stored.
enum class Outcome
{
    success = 0,
    failure = 1
};

void addList(Statement& insert, std::int64_t hotFolder, Outcome outcome, const ActionList& actions)
{
    int position = 0;
    for (const Action& action : actions)
    {
        insert.bind(hotFolder, static_cast<int>(outcome), position++, static_cast<int>(action.getType()),
                    action.getDestinationPath(), action.getHttpUrl());
        insert.step();
    }
}

} // namespace

void ActionTable::create(Connection& connection)
{
    connection.execute("CREATE TABLE action ("
                       " hot_folder INTEGER NOT NULL REFERENCES hot_folder ON DELETE CASCADE,"
                       " outcome INTEGER NOT NULL,"
                       " position INTEGER NOT NULL,"
                       " type INTEGER NOT NULL,"
                       " destination_path TEXT NOT NULL,"
                       " http_url TEXT NOT NULL,"
                       " PRIMARY KEY (hot_folder, outcome, position)) WITHOUT ROWID");
}

void ActionTable::add(Connection& connection, std::int64_t hotFolder, const ActionList& onSuccess,
                      const ActionList& onFailure)
{
    Statement insert(connection, "INSERT INTO action (hot_folder, outcome, position, type, destination_path, http_url)"
                                 " VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
    addList(insert, hotFolder, Outcome::success, onSuccess);
    addList(insert, hotFolder, Outcome::failure, onFailure);
}

void ActionTable::remove(Connection& connection, std::int64_t hotFolder)
{
    Statement(connection, "DELETE FROM action WHERE hot_folder = ?1").bind(hotFolder).step();
}

ActionTable::Reader::Reader(const Connection& connection)
    : m_row(connection, "SELECT hot_folder, outcome, type, destination_path, http_url FROM action"
                        " ORDER BY hot_folder, outcome, position"),
      m_hasRow(m_row.step())
{
}

void ActionTable::Reader::read(std::int64_t hotFolder, ActionList& onSuccess, ActionList& onFailure)
{
    // Actions without a hot folder, which another program may have left, are passed over.
    for (; m_hasRow && m_row.getInt64(0) <= hotFolder; m_hasRow = m_row.step())
    {
        if (m_row.getInt64(0) == hotFolder)
        {
            const bool success = m_row.getInt(1) == static_cast<int>(Outcome::success);
            Action& action = (success ? onSuccess : onFailure).emplace_back();
            action.setType(static_cast<ActionType>(m_row.getInt(2)));
            action.setDestinationPath(m_row.getText(3));
            action.setHttpUrl(m_row.getText(4));
        }
    }
}

} // namespace HotFolders
