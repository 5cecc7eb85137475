#include "ResultList.h"

#include "Dpi.h"
#include "Failure.h"
#include "Restore.h"
#include "ShownColumns.h"
#include "hiddenLabel.h"

#include <uxtheme.h>
#include <windowsx.h>

namespace Console
{

namespace
{

constexpr int allItems = -1;

DWORD controlMode(int viewMode)
{
    // The other modes have the same numbers; a list cannot filter, which shows as details.
    return viewMode == MMCLV_VIEWSTYLE_FILTERED ? LV_VIEW_DETAILS : static_cast<DWORD>(viewMode);
}

} // namespace

ResultList::ResultList(HWND parent, View& view, Owner& owner)
    : Window({.className = L"TConsole.ResultList",
              .style = WS_CHILD | WS_CLIPCHILDREN,
              .extendedStyle = WS_EX_CONTROLPARENT,
              .parent = parent}),
      m_view(view),
      m_owner(owner)
{
    createHiddenLabel(handle(), L"Result list");
    m_control = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"Result list",
                                WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS |
                                    LVS_SHAREIMAGELISTS | LVS_EDITLABELS | LVS_AUTOARRANGE,
                                0, 0, 0, 0, handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (m_control == nullptr)
    {
        throwLastError("CreateWindowEx");
    }
    const DWORD extended =
        LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP | LVS_EX_INFOTIP | LVS_EX_HEADERDRAGDROP;
    ListView_SetExtendedListViewStyle(m_control, extended);
    SetWindowTheme(m_control, L"Explorer", nullptr);
}

ResultList::~ResultList()
{
    destroy();
}

void ResultList::setAppearance(HFONT font, int dpi)
{
    m_dpi = dpi;
    SendMessageW(m_control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    takeMode();
    takeColumns();
}

void ResultList::takeMode()
{
    LONG_PTR style = GetWindowLongPtrW(m_control, GWL_STYLE) & ~(LVS_SINGLESEL | LVS_NOSORTHEADER);
    style |= m_view.multiSelect() ? 0 : LVS_SINGLESEL;
    style |= m_view.sortable() ? 0 : LVS_NOSORTHEADER;
    SetWindowLongPtrW(m_control, GWL_STYLE, style);
    ListView_SetImageList(m_control, m_smallImages.make(m_view.smallImages(), scaled(16, m_dpi)), LVSIL_SMALL);
    ListView_SetImageList(m_control, m_largeImages.make(m_view.largeImages(), scaled(32, m_dpi)), LVSIL_NORMAL);
    if (ListView_GetView(m_control) != controlMode(m_view.viewMode()))
    {
        ListView_SetView(m_control, controlMode(m_view.viewMode()));
    }
    InvalidateRect(m_control, nullptr, TRUE);
}

void ResultList::takeColumns()
{
    const Restore silent(m_silent, true);
    SendMessageW(m_control, WM_SETREDRAW, FALSE, 0);
    while (ListView_DeleteColumn(m_control, 0))
    {
    }
    const std::vector<Column> columns = shownColumns(m_view);
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
    {
        const Column& column = columns[static_cast<std::size_t>(i)];
        LVCOLUMNW header{};
        header.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        header.fmt = column.format;
        header.cx = column.hidden ? 0 : scaled(column.width, m_dpi);
        header.pszText = const_cast<wchar_t*>(column.title.c_str());
        header.iSubItem = i;
        ListView_InsertColumn(m_control, i, &header);
    }
    takeSortMark();
    SendMessageW(m_control, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(m_control, nullptr, TRUE);
}

void ResultList::takeSortMark()
{
    const HWND header = ListView_GetHeader(m_control);
    for (int i = 0; i < Header_GetItemCount(header); ++i)
    {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        Header_GetItem(header, i, &item);
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (i == m_view.sortColumn())
        {
            item.fmt |= m_view.sortDescending() ? HDF_SORTDOWN : HDF_SORTUP;
        }
        Header_SetItem(header, i, &item);
    }
}

void ResultList::takeRows()
{
    {
        const Restore silent(m_silent, true);
        ListView_SetItemCountEx(m_control, m_view.rowCount(), LVSICF_NOSCROLL);
    }
    takeSortMark();
    takeSelection();
    InvalidateRect(m_control, nullptr, FALSE);
}

void ResultList::takeSelection()
{
    const Restore silent(m_silent, true);
    const std::vector<int> rows = m_view.selectedRows();
    const int count = m_view.rowCount();
    if (rows.size() == static_cast<std::size_t>(count) && count > 1)
    {
        ListView_SetItemState(m_control, allItems, LVIS_SELECTED, LVIS_SELECTED);
    }
    else if (rows != selectedRows())
    {
        ListView_SetItemState(m_control, allItems, 0, LVIS_SELECTED);
        for (const int row : rows)
        {
            ListView_SetItemState(m_control, row, LVIS_SELECTED, LVIS_SELECTED);
        }
    }
    const int focused = m_view.focusedRow();
    if (focused >= 0 && focused != focusedRow())
    {
        ListView_SetItemState(m_control, focused, LVIS_FOCUSED, LVIS_FOCUSED);
        ListView_SetSelectionMark(m_control, focused);
        ListView_EnsureVisible(m_control, focused, FALSE);
    }
}

void ResultList::refreshRow(int row)
{
    ListView_RedrawItems(m_control, row, row);
}

std::vector<int> ResultList::selectedRows() const
{
    std::vector<int> rows;
    for (int row = ListView_GetNextItem(m_control, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(m_control, row, LVNI_SELECTED))
    {
        rows.push_back(row);
    }
    return rows;
}

int ResultList::focusedRow() const
{
    return ListView_GetNextItem(m_control, -1, LVNI_FOCUSED);
}

void ResultList::selectAll()
{
    if (m_view.multiSelect())
    {
        ListView_SetItemState(m_control, allItems, LVIS_SELECTED, LVIS_SELECTED);
    }
}

void ResultList::editName(int row)
{
    SetFocus(m_control);
    ListView_EditLabel(m_control, row);
}

POINT ResultList::menuPlace() const
{
    POINT point{};
    RECT place{};
    const int row = ListView_GetNextItem(m_control, -1, LVNI_SELECTED);
    if (row >= 0 && ListView_GetItemRect(m_control, row, &place, LVIR_LABEL))
    {
        point = {place.left, place.bottom};
    }
    ClientToScreen(m_control, &point);
    return point;
}

LRESULT ResultList::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
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
    {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        // The list passes on what its header reports.
        return header.hwndFrom == m_control ? handleNotification(header) : handleHeaderNotification(header);
    }
    case WM_CONTEXTMENU:
        // -1: the menu key or Shift+F10.
        wantMenu({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, lParam == -1);
        return 0;
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

LRESULT ResultList::handleNotification(NMHDR& header)
{
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    switch (header.code)
    {
    case LVN_GETDISPINFOW:
        provide(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return 0;
    case LVN_ODCACHEHINT:
    {
        const auto& hint = reinterpret_cast<const NMLVCACHEHINT&>(header);
        m_view.cacheHint(hint.iFrom, hint.iTo);
        return 0;
    }
    case LVN_ODFINDITEMW:
    {
        const auto& find = reinterpret_cast<const NMLVFINDITEMW&>(header);
        const bool byText = (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) != 0 && find.lvfi.psz != nullptr;
        return byText ? m_view.findRow(find.lvfi.psz, find.iStart) : -1;
    }
    case LVN_ITEMCHANGED:
        if (!m_silent && ((change.uOldState ^ change.uNewState) & (LVIS_SELECTED | LVIS_FOCUSED)) != 0)
        {
            m_owner.rowsChosen();
        }
        return 0;
    case LVN_ODSTATECHANGED:
        if (!m_silent)
        {
            m_owner.rowsChosen();
        }
        return 0;
    case LVN_COLUMNCLICK:
        m_owner.columnClicked(change.iSubItem);
        return 0;
    case LVN_BEGINLABELEDITW:
        return !m_owner.rowRenamable(reinterpret_cast<const NMLVDISPINFOW&>(header).item.iItem);
    case LVN_ENDLABELEDITW:
    {
        const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
        if (item.pszText != nullptr)
        {
            m_owner.rowRenamed(item.iItem, item.pszText);
        }
        return FALSE;
    }
    case NM_DBLCLK:
        activate(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem);
        return 0;
    case NM_RETURN:
        activate(focusedRow());
        return 0;
    case NM_SETFOCUS:
        m_owner.listFocused();
        return 0;
    default:
        return 0;
    }
}

LRESULT ResultList::handleHeaderNotification(NMHDR& header)
{
    // Wine's list passes on only the end of a drag; that of Windows also every change on the way and the width that a
    // double click fits.
    if ((header.code == HDN_ITEMCHANGEDW || header.code == HDN_ENDTRACKW) && !m_silent)
    {
        const auto& change = reinterpret_cast<const NMHEADERW&>(header);
        if (change.pitem != nullptr && (change.pitem->mask & HDI_WIDTH) != 0)
        {
            m_owner.columnResized(change.iItem, unscaled(change.pitem->cxy, m_dpi));
        }
    }
    return 0;
}

void ResultList::provide(LVITEMW& item)
{
    if ((item.mask & LVIF_TEXT) != 0)
    {
        m_text = m_view.rowText(item.iItem, item.iSubItem);
        item.pszText = m_text.data();
    }
    if ((item.mask & LVIF_IMAGE) != 0)
    {
        item.iImage = m_view.rowImage(item.iItem);
        m_smallImages.follow(m_view.smallImages());
        m_largeImages.follow(m_view.largeImages());
    }
    if ((item.mask & LVIF_INDENT) != 0)
    {
        item.iIndent = m_view.rowIndent(item.iItem);
    }
}

void ResultList::activate(int row)
{
    if (row >= 0)
    {
        m_owner.rowActivated(row);
    }
}

void ResultList::wantMenu(POINT screen, bool keyboard)
{
    int row = -1;
    if (keyboard)
    {
        row = ListView_GetNextItem(m_control, -1, LVNI_SELECTED);
        screen = menuPlace();
    }
    else
    {
        LVHITTESTINFO hit{};
        hit.pt = screen;
        ScreenToClient(m_control, &hit.pt);
        RECT header{};
        GetWindowRect(ListView_GetHeader(m_control), &header);
        if (PtInRect(&header, screen) && IsWindowVisible(ListView_GetHeader(m_control)))
        {
            return;
        }
        row = ListView_HitTest(m_control, &hit);
    }
    if (row >= 0)
    {
        m_owner.rowMenuWanted(screen);
    }
    else
    {
        m_owner.paneMenuWanted(screen);
    }
}

} // namespace Console
