#include "tmgmt/frame/RootItem.h"

#include <array>

#include "tmgmt/frame/scopeChildren.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

RootItem::RootItem(RootBranches branches)
    : Item(ScopeNode{.displayName = productCaption, .image = 1, .childCount = 7}), m_branches(std::move(branches))
{
}

HRESULT RootItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (!selecting)
    {
        return E_NOTIMPL;
    }
    console.switchSortingOff();
    return S_OK;
}

HRESULT RootItem::OnExpand(bool expanding, HSCOPEITEM handle, Console& console)
{
    // Kept as is: "About KV Tessaro" comes before the branches that work is done in.
    const std::array children{m_branches.about,        m_branches.hotFolders, m_branches.templates, m_branches.users,
                              m_branches.certificates, m_branches.settings,   m_branches.log};
    return expandChildren(*this, children, expanding, handle, console);
}

} // namespace TMgmt
