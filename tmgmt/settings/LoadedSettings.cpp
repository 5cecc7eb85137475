#include "tmgmt/settings/LoadedSettings.h"

namespace TMgmt
{

LoadedSettings::LoadedSettings(Core::SmartPtr<FileReport> report) : m_report(std::move(report))
{
    try
    {
        m_settings = readSettings();
        m_report->succeeded();
    }
    catch (const Core::Exception& exception)
    {
        m_report->failed(exception);
    }
}

std::optional<Core::String> LoadedSettings::find(const Core::String& key) const
{
    Core::String value;
    return m_settings.getValue(key, value) ? std::optional(value) : std::nullopt;
}

} // namespace TMgmt
