#include "brimlow/database/Transaction.h"

#include <sqlite3.h>

namespace Database
{

Transaction::Transaction(Connection& connection, Kind kind) : m_connection(connection)
{
    m_connection.execute(kind == Kind::write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction()
{
    if (m_open)
    {
        // Fails when SQLite has taken everything back by itself, as it does when the disk is full.
        sqlite3_exec(m_connection.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Transaction::commit()
{
    m_connection.execute("COMMIT");
    m_open = false;
}

} // namespace Database
