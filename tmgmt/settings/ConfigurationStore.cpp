#include "tmgmt/settings/ConfigurationStore.h"

#include "tmgmt/frame/ServerFile.h"

namespace TMgmt
{
namespace
{

constexpr ServerFile file(L"Brimlow\\TSvc.config");

} // namespace

std::optional<Core::String> readSetting(const Core::String& key)
{
    Core::String value;
    return readSettings().getValue(key, value) ? std::optional(value) : std::nullopt;
}

Core::Configuration readSettings()
{
    return file.load();
}

void writeSetting(const Core::String& key, const Core::String& value)
{
    file.setValue(key, value);
}

void writeSettings(const std::vector<std::pair<Core::String, Core::String>>& settings)
{
    file.setValues(settings);
}

void resetSetting(const Core::String& key)
{
    file.deleteValue(key);
}

} // namespace TMgmt
