#pragma once

#include "brimlow/system/String.h"

namespace Core::Application
{

// The server's own configuration file, which holds the keys ProductName, ProductVersion and BuildNumber:
// "Brimlow\Common\Config\System.config" in the common application data folder.
String getSystemConfigFilePath();

// The folder that the server configuration file, "Brimlow\TSvc.config" in the common application data folder, names
// under key, or defaultFolder where the file or the key is absent. "%APP_DATA%" anywhere in either stands for the
// common application data folder. The text is otherwise returned as it is: the folder need not exist.
// Throws what Configuration::loadFrom throws for a file that cannot be read.
String getFolder(const String& key, const String& defaultFolder);

} // namespace Core::Application
