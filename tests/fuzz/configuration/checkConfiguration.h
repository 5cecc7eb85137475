#pragma once

#include <string_view>

// Reads any bytes as a configuration file. They are refused with an exception that says why, or else keep their
// entries through saving, adding a key and deleting it again. Ends the process where that does not hold.
void checkConfiguration(std::string_view content);
