#pragma once

#include <vector>

#include "tmgmt/settings/PropertyItem.h"

namespace TMgmt
{

// The node "Log": the settings of the server's logging, and below it the log files.
class LogItem : public Item<LogItem>
{
  public:
    static constexpr GUID nodeType{0xaff1f810, 0x6492, 0x44b3, {0x96, 0x9a, 0x64, 0x41, 0xb4, 0x4b, 0x4d, 0x77}};

    LogItem(const LoadedSettings& settings, Core::SmartPtr<CSnapInItem> logFiles);

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;
    HRESULT OnExpand(bool expanding, HSCOPEITEM handle, Console& console) override;

  protected:
    void insertRows(Console& console) override;

  private:
    std::vector<Core::SmartPtr<PropertyItem>> m_properties;
    Core::SmartPtr<CSnapInItem> m_logFiles;
};

} // namespace TMgmt
