#pragma once

#include "tmgmt/fonts_logs/LogFolder.h"
#include "tmgmt/fonts_logs/LogListPropertyItem.h"
#include "tmgmt/frame/Collection.h"
#include "tmgmt/frame/FileReport.h"

namespace TMgmt
{

// The node "Log Files": the files that the server's log folder holds.
class LogListItem : public Collection<LogListItem, LogListPropertyItem>
{
  public:
    static constexpr GUID nodeType{0x036344ff, 0xbd42, 0x45e6, {0x90, 0x77, 0x66, 0xf1, 0xcb, 0x3b, 0xf9, 0x6c}};
    static constexpr UINT menu = IDM_LOG_FILES;

    // settingsReport tells that the settings, which name the folder, cannot be read.
    explicit LogListItem(Core::SmartPtr<FileReport> settingsReport);

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;

  protected:
    // None when the settings cannot be read, which is reported once.
    Rows readRows() override;

  private:
    HRESULT deleteAll(Console& console);

    Core::SmartPtr<FileReport> m_settingsReport;
    LogFolder m_folder;
};

} // namespace TMgmt
