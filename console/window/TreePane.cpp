#include "TreePane.h"

#include "Dpi.h"
#include "Failure.h"
#include "Restore.h"
#include "hiddenLabel.h"

#include <uxtheme.h>
#include <windowsx.h>

#include <algorithm>

namespace Console
{

namespace
{

NodeId nodeOf(const TVITEMW& item)
{
    return static_cast<NodeId>(item.lParam);
}

NodeId nodeOfItem(HWND control, HTREEITEM handle)
{
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = handle;
    return handle != nullptr && TreeView_GetItem(control, &item) ? nodeOf(item) : NodeId::none;
}

} // namespace

TreePane::TreePane(HWND parent, const ScopeTree& tree, NodeId top, Owner& owner)
    : Window({.className = L"TConsole.TreePane",
              .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
              .extendedStyle = WS_EX_CONTROLPARENT,
              .parent = parent}),
      m_tree(tree),
      m_top(top),
      m_owner(owner)
{
    createHiddenLabel(handle(), L"Console tree");
    m_control = CreateWindowExW(WS_EX_CLIENTEDGE, WC_TREEVIEWW, L"Console tree",
                                WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES |
                                    TVS_SHOWSELALWAYS | TVS_EDITLABELS,
                                0, 0, 0, 0, handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (m_control == nullptr)
    {
        throwLastError("CreateWindowEx");
    }
    SetWindowTheme(m_control, L"Explorer", nullptr);
    if (m_top != NodeId::none)
    {
        insertBelow(TVI_ROOT, TVI_LAST, m_top);
        return;
    }
    for (const NodeId root : m_tree.roots())
    {
        insertBelow(TVI_ROOT, TVI_LAST, root);
    }
}

TreePane::~TreePane()
{
    destroy();
}

void TreePane::setAppearance(HFONT font, int dpi)
{
    SendMessageW(m_control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    TreeView_SetImageList(m_control, m_images.make(m_tree.images(), scaled(16, dpi)), TVSIL_NORMAL);
    const int line = std::max(lineHeight(m_control, font), scaled(16, dpi));
    TreeView_SetItemHeight(m_control, (line + scaled(4, dpi)) & ~1);
}

void TreePane::insert(NodeId node)
{
    const NodeId parent = m_tree.parent(node);
    if (m_top != NodeId::none && itemOf(parent) == nullptr)
    {
        return;
    }
    const HTREEITEM parentItem = parent == NodeId::none ? TVI_ROOT : itemOf(parent);
    if (parentItem == nullptr || itemOf(node) != nullptr)
    {
        return;
    }
    HTREEITEM after = TVI_LAST;
    if (m_tree.nextSibling(node) != NodeId::none)
    {
        after = TVI_FIRST;
        for (const NodeId sibling : parent == NodeId::none ? m_tree.roots() : m_tree.children(parent))
        {
            if (sibling == node)
            {
                break;
            }
            after = itemOf(sibling);
        }
    }
    insertBelow(parentItem, after, node);
    refresh(parent);
}

void TreePane::insertBelow(HTREEITEM parent, HTREEITEM after, NodeId node)
{
    TVINSERTSTRUCTW insertion{};
    insertion.hParent = parent;
    insertion.hInsertAfter = after;
    insertion.itemex.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    insertion.itemex.pszText = LPSTR_TEXTCALLBACKW;
    insertion.itemex.iImage = I_IMAGECALLBACK;
    insertion.itemex.iSelectedImage = I_IMAGECALLBACK;
    insertion.itemex.cChildren = I_CHILDRENCALLBACK;
    insertion.itemex.lParam = static_cast<LPARAM>(node);
    const HTREEITEM item = TreeView_InsertItem(m_control, &insertion);
    if (item == nullptr)
    {
        throwLastError("TVM_INSERTITEM");
    }
    m_items[node] = item;
    for (const NodeId child : m_tree.children(node))
    {
        insertBelow(item, TVI_LAST, child);
    }
}

void TreePane::remove(NodeId node)
{
    if (const HTREEITEM item = itemOf(node))
    {
        const Restore silent(m_silent, true);
        TreeView_DeleteItem(m_control, item);
    }
}

void TreePane::refresh(NodeId node)
{
    const HTREEITEM handle = itemOf(node);
    if (handle == nullptr)
    {
        return;
    }
    // Setting a callback again makes the control forget what it knows.
    TVITEMW item{};
    item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
    item.hItem = handle;
    item.pszText = LPSTR_TEXTCALLBACKW;
    item.iImage = I_IMAGECALLBACK;
    item.iSelectedImage = I_IMAGECALLBACK;
    item.cChildren = I_CHILDRENCALLBACK;
    TreeView_SetItem(m_control, &item);
}

void TreePane::mark(NodeId node)
{
    const Restore silent(m_silent, true);
    const HTREEITEM item = itemOf(node);
    if (item != TreeView_GetSelection(m_control))
    {
        TreeView_SelectItem(m_control, item);
    }
    if (item != nullptr)
    {
        TreeView_EnsureVisible(m_control, item);
    }
}

NodeId TreePane::marked() const
{
    return nodeOfItem(m_control, TreeView_GetSelection(m_control));
}

void TreePane::open(NodeId node, bool open)
{
    if (const HTREEITEM item = itemOf(node))
    {
        const Restore silent(m_silent, true);
        TreeView_Expand(m_control, item, open ? TVE_EXPAND : TVE_COLLAPSE);
    }
}

void TreePane::editName(NodeId node)
{
    if (const HTREEITEM item = itemOf(node))
    {
        SetFocus(m_control);
        TreeView_EditLabel(m_control, item);
    }
}

POINT TreePane::menuPlace(NodeId node) const
{
    RECT place{};
    POINT point{};
    const HTREEITEM item = itemOf(node);
    if (item != nullptr && TreeView_GetItemRect(m_control, item, &place, TRUE))
    {
        point = {place.left, place.bottom};
    }
    ClientToScreen(m_control, &point);
    return point;
}

LRESULT TreePane::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SIZE:
        MoveWindow(m_control, 0, 0, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam), TRUE);
        return 0;
    case WM_SETFOCUS:
        SetFocus(m_control);
        return 0;
    case WM_NOTIFY:
        return handleNotification(*reinterpret_cast<NMHDR*>(lParam));
    case WM_CONTEXTMENU:
        // -1: the menu key or Shift+F10.
        wantMenu({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, lParam == -1);
        return 0;
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

LRESULT TreePane::handleNotification(NMHDR& header)
{
    if (header.hwndFrom != m_control)
    {
        return 0;
    }
    auto& change = reinterpret_cast<NMTREEVIEWW&>(header);
    auto& information = reinterpret_cast<NMTVDISPINFOW&>(header);
    switch (header.code)
    {
    case TVN_GETDISPINFOW:
        provide(information.item);
        return 0;
    case TVN_SELCHANGINGW:
        return !m_silent && !m_owner.treeIsFree();
    case TVN_SELCHANGEDW:
        if (!m_silent && change.itemNew.hItem != nullptr)
        {
            m_owner.nodeChosen(nodeOf(change.itemNew));
        }
        return 0;
    case TVN_ITEMEXPANDINGW:
        if (change.action == TVE_EXPAND && !m_tree.wasExpanded(nodeOf(change.itemNew)))
        {
            if (!m_owner.treeIsFree())
            {
                return TRUE;
            }
            m_owner.nodeOpening(nodeOf(change.itemNew));
        }
        return 0;
    case TVN_DELETEITEMW:
        m_items.erase(nodeOf(change.itemOld));
        return 0;
    case TVN_BEGINLABELEDITW:
        return !m_owner.nodeRenamable(nodeOf(information.item));
    case TVN_ENDLABELEDITW:
        if (information.item.pszText != nullptr)
        {
            m_owner.nodeRenamed(nodeOf(information.item), information.item.pszText);
        }
        // The control must not keep the text: the snap-in is asked for it.
        return FALSE;
    case NM_RETURN:
        TreeView_Expand(m_control, TreeView_GetSelection(m_control), TVE_TOGGLE);
        return TRUE;
    case NM_SETFOCUS:
        m_owner.treeFocused();
        return 0;
    default:
        return 0;
    }
}

void TreePane::provide(TVITEMW& item)
{
    const NodeId node = nodeOf(item);
    if ((item.mask & TVIF_TEXT) != 0 && item.cchTextMax > 0)
    {
        lstrcpynW(item.pszText, m_tree.text(node).c_str(), item.cchTextMax);
    }
    if ((item.mask & TVIF_IMAGE) != 0)
    {
        item.iImage = m_tree.image(node);
    }
    if ((item.mask & TVIF_SELECTEDIMAGE) != 0)
    {
        item.iSelectedImage = m_tree.openImage(node);
    }
    if ((item.mask & TVIF_CHILDREN) != 0)
    {
        item.cChildren = m_tree.hasExpandMark(node) ? 1 : 0;
    }
    m_images.follow(m_tree.images());
}

void TreePane::wantMenu(POINT screen, bool keyboard)
{
    if (keyboard)
    {
        const NodeId node = marked();
        if (node != NodeId::none)
        {
            m_owner.nodeMenuWanted(node, menuPlace(node));
        }
        return;
    }
    TVHITTESTINFO hit{};
    hit.pt = screen;
    ScreenToClient(m_control, &hit.pt);
    const HTREEITEM item = TreeView_HitTest(m_control, &hit);
    if (item == nullptr || (hit.flags & (TVHT_ONITEM | TVHT_ONITEMRIGHT | TVHT_ONITEMINDENT)) == 0)
    {
        return;
    }
    // The menu is about this node, selected or not: it is marked while the menu is open.
    const NodeId node = nodeOfItem(m_control, item);
    TreeView_SelectDropTarget(m_control, item);
    m_owner.nodeMenuWanted(node, screen);
    TreeView_SelectDropTarget(m_control, nullptr);
}

HTREEITEM TreePane::itemOf(NodeId node) const
{
    const auto found = m_items.find(node);
    return found != m_items.end() ? found->second : nullptr;
}

} // namespace Console
