#include "tmgmt/settings/ConfigurationStore.h"

#include "brimlow/system/Configuration.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

namespace TMgmt
{
namespace
{

Core::String filePath()
{
    return Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), L"Brimlow\\TSvc.config");
}

Core::Configuration load(const Core::String& path)
{
    Core::Configuration configuration;
    if (Core::IO::FileSystem::fileExists(path))
    {
        configuration.loadFrom(path);
    }
    return configuration;
}

} // namespace

std::optional<Core::String> readSetting(const Core::String& key)
{
    const Core::Configuration configuration = load(filePath());
    Core::String value;
    return configuration.getValue(key, value) ? std::optional(value) : std::nullopt;
}

void writeSetting(const Core::String& key, const Core::String& value)
{
    const Core::String path = filePath();
    Core::Configuration configuration = load(path);
    configuration.setValue(key, value, path);
    configuration.saveTo(path);
}

void resetSetting(const Core::String& key)
{
    const Core::String path = filePath();
    Core::Configuration configuration = load(path);
    configuration.deleteValue(key);
    configuration.saveTo(path);
}

} // namespace TMgmt
