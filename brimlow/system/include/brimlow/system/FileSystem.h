#pragma once

#include "brimlow/system/String.h"

#include <vector>

namespace Core::IO::FileSystem
{

// Joins a folder and a relative path with exactly one separator between them; either may be empty.
String combinePath(const String& folder, const String& relativePath);

// What follows the last separator: the name of a file without its folder.
String getFileName(const String& path);

// The full paths of the files in a folder, not of the folders in it, whose names match the pattern: "*" and the ending
// that a name must have, as "*.log". The ending is compared as a whole and without regard to case, so that "A.LOG"
// matches and "a.log1" does not. A link to a file counts as a file.
// The order is that of the names in upper case, unit by unit. A folder that is missing, empty as a text, a file or
// closed to the caller has no files.
std::vector<String> getFiles(const String& folder, const String& pattern);

// Deletes a file for good. False when it is not there, is read-only, in use by somebody who does not share its
// deletion, or a folder.
bool deleteFile(const String& path);

// True for an existing file, false for a folder or nothing. A file whose replacement by AtomicFile was interrupted
// counts as existing, since AtomicFile::read still finds its content.
bool fileExists(const String& path);

// True for an existing folder, false for a file or nothing.
bool folderExists(const String& path);

} // namespace Core::IO::FileSystem
