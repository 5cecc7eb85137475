#include "soundness.h"

#include "brimlow/database/Connection.h"
#include "brimlow/database/Statement.h"

#include <stdexcept>

void requireSound(const Database::DatabaseFile& file)
{
    const auto connection = Database::Connection::openExisting(file);
    if (!connection)
    {
        return;
    }
    Database::Statement check(*connection, "PRAGMA integrity_check");
    Database::Statement orphans(*connection, "PRAGMA foreign_key_check");
    if (!check.step() || check.getText(0) != L"ok" || orphans.step())
    {
        throw std::runtime_error("the database is damaged");
    }
}
