#pragma once

#include "brimlow/database/Connection.h"

namespace Database
{

// Several statements that see one state of the database and take effect together or not at all.
class Transaction
{
  public:
    enum class Kind
    {
        read,
        // Asks for the right to write at once. A transaction that begins as a reader and becomes a writer is refused,
        // without any waiting, when another writer came first.
        write
    };

    Transaction(Connection& connection, Kind kind);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    // Takes everything back unless commit succeeded.
    ~Transaction();

    // When it returns, the changes are on the disk.
    void commit();

  private:
    Connection& m_connection;
    bool m_open = true;
};

} // namespace Database
