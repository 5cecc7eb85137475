#include "brimlow/system/Application.h"

#include "brimlow/system/Configuration.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

namespace Core::Application
{

namespace
{

String expand(const String& text)
{
    const String placeholder = L"%APP_DATA%";
    const String::View source = text.view();
    String result;
    std::size_t copied = 0;
    for (std::size_t at = source.find(placeholder.view()); at != String::View::npos;
         at = source.find(placeholder.view(), copied))
    {
        result += source.substr(copied, at - copied);
        result += Process::getCommonAppDataFolder();
        copied = at + placeholder.length();
    }
    result += source.substr(copied);
    return result;
}

} // namespace

String getSystemConfigFilePath()
{
    return IO::FileSystem::combinePath(Process::getCommonAppDataFolder(), L"Brimlow\\Common\\Config\\System.config");
}

String getFolder(const String& key, const String& defaultFolder)
{
    const String path = IO::FileSystem::combinePath(Process::getCommonAppDataFolder(), L"Brimlow\\TSvc.config");
    Configuration configuration;
    if (IO::FileSystem::fileExists(path))
    {
        configuration.loadFrom(path);
    }
    String folder = defaultFolder;
    configuration.getValue(key, folder);
    return expand(folder);
}

} // namespace Core::Application
