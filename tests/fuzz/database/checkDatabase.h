#pragma once

#include "brimlow/system/String.h"

#include <string_view>

// Take any bytes for the database of the hot folders, or for that of the applications and users, in a file that they
// write. They are refused with an exception that names the file, or else are read without a change to the file and can
// be changed, as far as the damage allows. They end the process where that does not hold.
void checkHotFolders(const Core::String& path, std::string_view content);
// Makes the file and folder "<path>.file" and "<path>.applications", too.
void checkTessaro(const Core::String& path, std::string_view content);

inline void checkDatabase(const Core::String& path, std::string_view content)
{
    checkHotFolders(path, content);
    checkTessaro(path, content);
}
