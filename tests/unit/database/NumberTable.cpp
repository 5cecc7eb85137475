#include "NumberTable.h"

#include "brimlow/database/Statement.h"
#include "brimlow/database/contentMark.h"

namespace NumberTable
{

Database::DatabaseFile at(const Core::String& path)
{
    const auto create = [](Database::Connection& connection, int)
    {
        connection.execute("CREATE TABLE number (id INTEGER PRIMARY KEY, value INTEGER)");
        Database::createContentMark(connection, {"number"});
    };
    return {path, {1, create}, std::chrono::milliseconds(0)};
}

void add(Database::Connection& connection, int number)
{
    Database::Statement(connection, "INSERT INTO number (value) VALUES (?1)").bind(number).step();
}

std::vector<int> load(const Database::Connection& connection)
{
    std::vector<int> numbers;
    Database::Statement row(connection, "SELECT value FROM number ORDER BY id");
    while (row.step())
    {
        numbers.push_back(row.getInt(0));
    }
    return numbers;
}

} // namespace NumberTable
