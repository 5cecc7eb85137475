#pragma once

#include "brimlow/system/String.h"

#include <chrono>

namespace Database
{

class Connection;

// The tables of a database as they have developed. Versions count from 1 and are kept in the file; 0 is a file without
// tables.
struct Schema
{
    int version;
    // Brings the tables of a file from an older version to this one, inside a transaction.
    void (*upgrade)(Connection& connection, int from);
};

// Where a database is, and what is in it.
struct DatabaseFile
{
    Core::String path;
    Schema schema;
    // How long an operation waits for another program that is changing the database.
    std::chrono::milliseconds busyTimeout = std::chrono::seconds(5);
};

} // namespace Database
