#include "ApplicationTable.h"

namespace Tessaro
{

void ApplicationTable::create(Database::Connection& connection)
{
    connection.execute("CREATE TABLE application (id INTEGER PRIMARY KEY);"
                       "CREATE TABLE template (id INTEGER PRIMARY KEY);"
                       "CREATE TABLE resource_folder (id INTEGER PRIMARY KEY);"
                       "CREATE TABLE resource_file (id INTEGER PRIMARY KEY);"
                       "CREATE TABLE access (id INTEGER PRIMARY KEY)");
}

std::vector<ServerApplication> ApplicationTable::load(const Database::Connection&)
{
    return {};
}

} // namespace Tessaro
