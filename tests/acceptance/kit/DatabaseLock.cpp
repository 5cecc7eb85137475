#include "kit/DatabaseLock.h"

#include <sqlite3.h>

#include <stdexcept>

namespace Acceptance
{

DatabaseLock::DatabaseLock(const std::filesystem::path& database)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open16(database.c_str(), &opened);
    m_database.reset(opened);
    if (result != SQLITE_OK || sqlite3_exec(opened, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
    {
        throw std::runtime_error("the database cannot be locked");
    }
}

void DatabaseLock::Close::operator()(sqlite3* database) const
{
    sqlite3_close(database);
}

} // namespace Acceptance
