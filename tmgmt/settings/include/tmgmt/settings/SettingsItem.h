#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The nodes below "Engine Settings".
struct SettingsBranches
{
    Core::SmartPtr<CSnapInItem> afpEncoder;
    Core::SmartPtr<CSnapInItem> listenerConfiguration;
    Core::SmartPtr<CSnapInItem> privateFonts;
};

// The node "Engine Settings". It has no settings of its own.
class SettingsItem : public Item<SettingsItem>
{
  public:
    static constexpr GUID nodeType{0xc9cfdce2, 0x4c8d, 0x457b, {0x84, 0x92, 0x2e, 0xa1, 0x36, 0x47, 0x5a, 0xba}};

    explicit SettingsItem(SettingsBranches branches);

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;
    HRESULT OnExpand(bool expanding, HSCOPEITEM handle, Console& console) override;

  private:
    SettingsBranches m_branches;
};

} // namespace TMgmt
