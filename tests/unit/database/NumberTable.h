#pragma once

#include "brimlow/database/DatabaseFile.h"
#include "brimlow/system/String.h"

#include <vector>

// A database with numbers in it, to test with.
namespace NumberTable
{

// Waits for nobody.
Database::DatabaseFile at(const Core::String& path);

void add(Database::Connection& connection, int number);

// In the order of adding.
std::vector<int> load(const Database::Connection& connection);

} // namespace NumberTable
