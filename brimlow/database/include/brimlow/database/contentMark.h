#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/database/RandomId.h"

#include <initializer_list>
#include <optional>

namespace Database
{

// The content mark of a database is a random id that is replaced by every change, whoever makes it. Two equal marks
// mean the same content, also when the file was replaced by another or restored from a backup meanwhile.

// Makes the mark, and the triggers on the tables that replace it. Part of making a database.
void createContentMark(Connection& connection, std::initializer_list<const char*> tables);

// Nothing when somebody removed it.
std::optional<RandomId> readContentMark(const Connection& connection);

} // namespace Database
