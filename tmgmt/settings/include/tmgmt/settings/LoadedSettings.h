#pragma once

#include "tmgmt/frame/FileReport.h"
#include "tmgmt/settings/ConfigurationStore.h"

#include "brimlow/system/SmartPtr.h"

namespace TMgmt
{

// The settings as they are while the tree is made: read once for all rows, however many there are.
class LoadedSettings
{
  public:
    // A file that cannot be read is told to the report and counts as empty: it must not keep the tree from loading.
    explicit LoadedSettings(Core::SmartPtr<FileReport> report);

    // Nothing when the key is not there: the default applies.
    std::optional<Core::String> find(const Core::String& key) const;

    // That of the settings' file.
    const Core::SmartPtr<FileReport>& report() const noexcept { return m_report; }

  private:
    Core::SmartPtr<FileReport> m_report;
    Core::Configuration m_settings;
};

} // namespace TMgmt
