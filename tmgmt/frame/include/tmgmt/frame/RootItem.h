#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The branches below the root. The frame does not know what they are.
struct RootBranches
{
    Core::SmartPtr<CSnapInItem> settings;
    Core::SmartPtr<CSnapInItem> about;
    Core::SmartPtr<CSnapInItem> log;
    Core::SmartPtr<CSnapInItem> hotFolders;
    Core::SmartPtr<CSnapInItem> templates;
    Core::SmartPtr<CSnapInItem> users;
    Core::SmartPtr<CSnapInItem> certificates;
};

// The static node "KV Tessaro 2010".
class RootItem : public Item<RootItem>
{
  public:
    static constexpr GUID nodeType{0x5e04c557, 0x3019, 0x11d3, {0x88, 0x56, 0x20, 0x4c, 0x4f, 0x4f, 0x50, 0x20}};

    explicit RootItem(RootBranches branches);

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;
    HRESULT OnExpand(bool expanding, HSCOPEITEM handle, Console& console) override;

  private:
    RootBranches m_branches;
};

} // namespace TMgmt
