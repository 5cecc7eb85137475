#include "tmgmt/settings/SettingsItem.h"

#include <array>

#include "tmgmt/frame/scopeChildren.h"

namespace TMgmt
{

// The console only asks whether there are any. Kept as is: "Engine Settings" declares two children and inserts three.
SettingsItem::SettingsItem(SettingsBranches branches)
    : Item(ScopeNode{.displayName = L"Engine Settings", .image = 1, .childCount = 2}), m_branches(std::move(branches))
{
}

HRESULT SettingsItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return E_NOTIMPL;
    }
    console.switchSortingOff();
    return S_OK;
}

HRESULT SettingsItem::OnExpand(bool expanding, HSCOPEITEM handle, Console& console)
{
    const std::array children{m_branches.listenerConfiguration, m_branches.afpEncoder, m_branches.privateFonts};
    return expandChildren(*this, children, expanding, handle, console);
}

} // namespace TMgmt
