#include "brimlow/database/contentMark.h"

#include "brimlow/database/Statement.h"

#include <string>

namespace Database
{

void createContentMark(Connection& connection, std::initializer_list<const char*> tables)
{
    connection.execute("CREATE TABLE content (mark BLOB NOT NULL);"
                       "INSERT INTO content VALUES (randomblob(16))");
    for (const std::string table : tables)
    {
        for (const std::string change : {"insert", "update", "delete"})
        {
            const std::string trigger = "CREATE TRIGGER " + table + "_" + change + " AFTER " + change + " ON " + table +
                                        " BEGIN UPDATE content SET mark = randomblob(16); END";
            connection.execute(trigger.c_str());
        }
    }
}

std::optional<RandomId> readContentMark(const Connection& connection)
{
    Statement mark(connection, "SELECT mark FROM content");
    return mark.step() ? std::optional(mark.getRandomId(0)) : std::nullopt;
}

} // namespace Database
