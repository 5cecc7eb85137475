#pragma once

#include "brimlow/system/String.h"

#include <vector>

namespace Core::IO
{

// The calls on the system behind FileSystem::getFiles and deleteFile.

// The names of the files in a folder, in no order. Of a folder that cannot be read to its end: those that could.
std::vector<String> fileNamesIn(const String& folder);

// False when the system refuses, as it does for a read-only file and a folder.
bool removeFile(const String& path);

} // namespace Core::IO
