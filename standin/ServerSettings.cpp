#include "ServerSettings.h"

#include <brimlow/system/Application.h>
#include <brimlow/system/Configuration.h>
#include <brimlow/system/Exception.h>
#include <brimlow/system/FileSystem.h>
#include <brimlow/system/Format.h>
#include <brimlow/system/Process.h>

#include <limits>

namespace StandIn
{

namespace
{

// A configuration file together with its path, which refusals name.
class SettingsFile
{
  public:
    SettingsFile()
        : m_path(Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), L"Brimlow\\TSvc.config"))
    {
        if (Core::IO::FileSystem::fileExists(m_path))
        {
            m_configuration.loadFrom(m_path);
        }
    }

    std::wstring text(const wchar_t* key, const std::wstring& absent) const
    {
        Core::String value = absent;
        m_configuration.getValue(key, value);
        return value.str();
    }

    int number(const wchar_t* key, int absent, int least, int most) const
    {
        Core::String value;
        if (!m_configuration.getValue(key, value))
        {
            return absent;
        }
        int number = 0;
        if (!Core::Format::parseInt(value, number) || number < least || number > most)
        {
            throw Core::FormatException(m_path + L": " + key + L" is \"" + value + L"\", which is no number from " +
                                        std::to_wstring(least) + L" to " + std::to_wstring(most) + L".");
        }
        return number;
    }

  private:
    Core::String m_path;
    Core::Configuration m_configuration;
};

LogLevel parseLogLevel(const std::wstring& text)
{
    if (text == L"None")
    {
        return LogLevel::none;
    }
    return text == L"Normal" ? LogLevel::normal : LogLevel::all;
}

} // namespace

ServerSettings ServerSettings::load()
{
    const SettingsFile file;
    ServerSettings settings;
    settings.address = file.text(L"ServerAddress", settings.address);
    settings.port = static_cast<unsigned short>(file.number(L"ServerPort", settings.port, 1, 65535));
    settings.backlog = file.number(L"ServerBacklog", settings.backlog, 0, std::numeric_limits<int>::max());
    settings.logLevel = parseLogLevel(file.text(L"LogLevel", L"None"));
    settings.logFolder = Core::Application::getFolder(L"LogFolder", L"%APP_DATA%\\Brimlow\\Log\\").str();
    return settings;
}

} // namespace StandIn
