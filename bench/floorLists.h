#pragma once

#include "floor/FloorNode.h"

#include <brimlow/system/String.h>

#include <cstddef>

// The plug-in's lists as the floor has them: the same rows, read by the same libraries, and nothing else.
namespace Bench
{

FloorNode certificateList();
FloorNode hotFolderList();
// Of the folder that Fixtures::make("logs", size) fills.
FloorNode logFileList(std::size_t size);
FloorNode privateFontList();
FloorNode userList();

// Where the private fonts are.
Core::String fontsFile();

} // namespace Bench
