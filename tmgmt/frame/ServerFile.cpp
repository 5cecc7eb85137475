#include "tmgmt/frame/ServerFile.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

namespace TMgmt
{
namespace
{

Core::Configuration loadFrom(const Core::String& path)
{
    Core::Configuration configuration;
    if (Core::IO::FileSystem::fileExists(path))
    {
        configuration.loadFrom(path);
    }
    return configuration;
}

} // namespace

Core::String ServerFile::path() const
{
    return Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), m_relativePath);
}

Core::Configuration ServerFile::load() const
{
    return loadFrom(path());
}

void ServerFile::setValue(const Core::String& key, const Core::String& value) const
{
    setValues({{key, value}});
}

void ServerFile::setValues(const std::vector<std::pair<Core::String, Core::String>>& values) const
{
    const Core::String path = this->path();
    Core::Configuration configuration = loadFrom(path);
    for (const auto& [key, value] : values)
    {
        configuration.setValue(key, value, path);
    }
    configuration.saveTo(path);
}

void ServerFile::deleteValue(const Core::String& key) const
{
    const Core::String path = this->path();
    Core::Configuration configuration = loadFrom(path);
    configuration.deleteValue(key);
    configuration.saveTo(path);
}

} // namespace TMgmt
