#pragma once

#include "brimlow/system/String.h"

struct sqlite3;

namespace Database
{

// What the administrator is told about a failed operation. result is SQLite's primary result code; database knows more
// about it.
Core::String failureSentence(const Core::String& path, sqlite3* database, int result);

// Whether the error code of the system says that there is no such file or folder.
bool isNotFound(int systemError) noexcept;

} // namespace Database
