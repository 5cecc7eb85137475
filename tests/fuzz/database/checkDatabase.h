#pragma once

#include "brimlow/system/String.h"

#include <string_view>

// Takes any bytes for the database of the hot folders, in a file that it writes. They are refused with an exception
// that names the file, or else are read without a change to the file and can be changed, as far as the damage allows.
// Ends the process where that does not hold.
void checkDatabase(const Core::String& path, std::string_view content);
