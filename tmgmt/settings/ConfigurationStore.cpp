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
    return file.load().getValue(key, value) ? std::optional(value) : std::nullopt;
}

void writeSetting(const Core::String& key, const Core::String& value)
{
    file.setValue(key, value);
}

void resetSetting(const Core::String& key)
{
    file.deleteValue(key);
}

} // namespace TMgmt
