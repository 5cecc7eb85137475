#pragma once

#include "brimlow/system/String.h"

namespace Core::IO::FileSystem
{

// Joins a folder and a relative path with exactly one separator between them; either may be empty.
String combinePath(const String& folder, const String& relativePath);

// True for an existing file, false for a folder or nothing. A file whose replacement by AtomicFile was interrupted
// counts as existing, since AtomicFile::read still finds its content.
bool fileExists(const String& path);

} // namespace Core::IO::FileSystem
