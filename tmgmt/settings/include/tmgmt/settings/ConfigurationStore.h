#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "brimlow/system/Configuration.h"

namespace TMgmt
{

// The settings of the server configuration file, "Brimlow\TSvc.config" in the common application data folder. Each
// call loads the file afresh, so that what the server or others wrote into it meanwhile is seen and kept. All of them
// throw Core::Exception when the file cannot be read or written; a failed change leaves it as it was.

// Nothing when the file or the key is not there: the default applies.
std::optional<Core::String> readSetting(const Core::String& key);

// All of them at one moment; none when the file is not there.
Core::Configuration readSettings();

// Creates the file when it is not there yet.
void writeSetting(const Core::String& key, const Core::String& value);

// The same for several keys with their values, which the file gets in one step.
void writeSettings(const std::vector<std::pair<Core::String, Core::String>>& settings);

// Removes the key, so that the default applies again. Creates the file when it is not there yet.
void resetSetting(const Core::String& key);

} // namespace TMgmt
