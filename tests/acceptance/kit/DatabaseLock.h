#pragma once

#include <filesystem>
#include <memory>

struct sqlite3;

namespace Acceptance
{

// While it lives, another program is in the middle of a change to a database, which is made where there is none.
class DatabaseLock
{
  public:
    // Throws std::runtime_error when somebody uses the database already.
    explicit DatabaseLock(const std::filesystem::path& database);

  private:
    struct Close
    {
        void operator()(sqlite3* database) const;
    };

    std::unique_ptr<sqlite3, Close> m_database;
};

} // namespace Acceptance
