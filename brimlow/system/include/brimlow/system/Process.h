#pragma once

#include "brimlow/system/String.h"

namespace Core::Process
{

// The machine-wide application data folder, without a separator at the end. Where there is no such thing as the
// Windows known folder: the environment variable PROGRAMDATA, else /var/lib.
// Throws IOException when the system does not tell.
String getCommonAppDataFolder();

} // namespace Core::Process
