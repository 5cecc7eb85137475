#pragma once

#include "brimlow/system/String.h"

struct sqlite3;

namespace Database
{

// What the administrator is told about a failed operation. result is SQLite's primary result code; database knows more
// about it.
Core::String failureSentence(const Core::String& path, sqlite3* database, int result);

// Whether the database could not be opened because there is no such file or folder.
bool isNotFound(sqlite3* database) noexcept;

} // namespace Database
