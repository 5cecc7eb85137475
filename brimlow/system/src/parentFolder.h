#pragma once

#include "brimlow/system/String.h"

namespace Core::IO
{

class FileOperations;

// The folder that a file or folder is in, without a separator at the end; empty where the path names none.
String parentFolder(const String& path);

// Makes the folder that a file or folder is to be in, and those above it, as far as they are missing.
// Throws IOException.
void makeParentFolders(const String& path, FileOperations& operations);

} // namespace Core::IO
