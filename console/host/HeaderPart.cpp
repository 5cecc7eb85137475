#include "HeaderPart.h"

#include "ViewState.h"
#include "taskText.h"

#include <algorithm>

namespace Console
{

namespace
{

// What "fit the title" comes to: the title in the system's list font, with the room that a header leaves around it.
int widthOfTitle(const std::wstring& title)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const platform::Font font(CreateFontIndirectW(&metrics.lfMessageFont));
    HDC const screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font.get());
    SIZE size{};
    GetTextExtentPoint32W(screen, title.c_str(), static_cast<int>(title.size()), &size);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return size.cx + 2 * GetSystemMetrics(SM_CXMENUCHECK);
}

} // namespace

ResultPane* HeaderPart::pane() const
{
    const Component* const component = m_whole.component();
    const bool shown = component != nullptr && component->view().current() == component && component->view().pane.shown;
    return shown ? &component->view().pane : nullptr;
}

ResultPane* HeaderPart::paneWith(int column) const
{
    ResultPane* const found = pane();
    return found != nullptr && column >= 0 && column < static_cast<int>(found->columns.size()) ? found : nullptr;
}

void HeaderPart::changed() const
{
    m_whole.component()->view().listener().columnsChanged();
}

HRESULT HeaderPart::insert(int column, LPCWSTR title, int format, int width)
{
    ResultPane* const pane = this->pane();
    if (pane == nullptr)
    {
        m_whole.complain(L"IHeaderCtrl::InsertColumn was called while the snap-in's node is not shown.");
        return E_UNEXPECTED;
    }
    if (title == nullptr || column < 0)
    {
        return E_INVALIDARG;
    }
    if (pane->rowCount() > 0)
    {
        m_whole.complain(L"IHeaderCtrl::InsertColumn was called after rows had been inserted.");
        return E_FAIL;
    }
    const int count = static_cast<int>(pane->columns.size());
    Column added;
    added.title = title;
    added.format = format & LVCFMT_JUSTIFYMASK;
    if (column == 0 && added.format != LVCFMT_LEFT)
    {
        if (m_whole.objects(L"Column 0 was inserted with another alignment than left."))
        {
            return E_INVALIDARG;
        }
        added.format = LVCFMT_LEFT;
    }
    added.hidden = width == HIDE_COLUMN;
    added.width = width == MMCLV_AUTO || added.hidden ? widthOfTitle(added.title) : std::max(width, 0);
    // A position behind the last column stands for the last one, as in a list view.
    pane->columns.insert(pane->columns.begin() + std::min(column, count), std::move(added));
    changed();
    return S_OK;
}

HRESULT HeaderPart::InsertColumn(int column, LPCWSTR title, int format, int width)
{
    return m_whole.answer(
        L"IHeaderCtrl::InsertColumn",
        [&] { return listOf(L"nCol", column, L"title", title, L"nFormat", format, L"nWidth", width); },
        [&] { return insert(column, title, format, width); });
}

HRESULT HeaderPart::DeleteColumn(int column)
{
    return m_whole.answer(
        L"IHeaderCtrl::DeleteColumn", [&] { return listOf(L"nCol", column); },
        [&]
        {
            ResultPane* const found = paneWith(column);
            if (found == nullptr)
            {
                return pane() == nullptr ? E_UNEXPECTED : E_INVALIDARG;
            }
            if (found->rowCount() > 0)
            {
                return E_FAIL;
            }
            found->columns.erase(found->columns.begin() + column);
            changed();
            return S_OK;
        });
}

HRESULT HeaderPart::SetColumnText(int column, LPCWSTR title)
{
    return m_whole.answer(
        L"IHeaderCtrl::SetColumnText", [&] { return listOf(L"nCol", column, L"title", title); },
        [&]
        {
            ResultPane* const found = paneWith(column);
            if (found == nullptr || title == nullptr)
            {
                return E_INVALIDARG;
            }
            found->columns[static_cast<std::size_t>(column)].title = title;
            changed();
            return S_OK;
        });
}

HRESULT HeaderPart::GetColumnText(int column, LPOLESTR* title)
{
    return m_whole.answer(
        L"IHeaderCtrl::GetColumnText", [&] { return listOf(L"nCol", column); },
        [&]
        {
            if (title == nullptr)
            {
                return E_POINTER;
            }
            *title = nullptr;
            const ResultPane* const found = paneWith(column);
            return found == nullptr ? E_INVALIDARG
                                    : copyToTask(found->columns[static_cast<std::size_t>(column)].title, *title);
        });
}

HRESULT HeaderPart::SetColumnWidth(int column, int width)
{
    return m_whole.answer(
        L"IHeaderCtrl::SetColumnWidth", [&] { return listOf(L"nCol", column, L"nWidth", width); },
        [&]
        {
            ResultPane* const found = paneWith(column);
            if (found == nullptr || (width < 0 && width != MMCLV_AUTO))
            {
                return E_INVALIDARG;
            }
            Column& changedColumn = found->columns[static_cast<std::size_t>(column)];
            changedColumn.width = width == MMCLV_AUTO ? widthOfTitle(changedColumn.title) : width;
            changed();
            return S_OK;
        });
}

HRESULT HeaderPart::GetColumnWidth(int column, int* width)
{
    return m_whole.answer(
        L"IHeaderCtrl::GetColumnWidth", [&] { return listOf(L"nCol", column); },
        [&]
        {
            const ResultPane* const found = paneWith(column);
            if (width == nullptr || found == nullptr)
            {
                return width == nullptr ? E_POINTER : E_INVALIDARG;
            }
            const Column& asked = found->columns[static_cast<std::size_t>(column)];
            *width = asked.hidden ? 0 : asked.width;
            return S_OK;
        });
}

// This console's lists have no filter row.
HRESULT HeaderPart::SetChangeTimeOut(unsigned __LONG32 timeout)
{
    return m_whole.answer(
        L"IHeaderCtrl2::SetChangeTimeOut", [&] { return listOf(L"timeout", timeout); }, [] { return S_OK; });
}

HRESULT HeaderPart::SetColumnFilter(UINT column, DWORD type, MMC_FILTERDATA*)
{
    return m_whole.answer(
        L"IHeaderCtrl2::SetColumnFilter", [&] { return listOf(L"column", column, L"type", type); },
        [] { return E_NOTIMPL; });
}

HRESULT HeaderPart::GetColumnFilter(UINT column, LPDWORD type, MMC_FILTERDATA*)
{
    return m_whole.answer(
        L"IHeaderCtrl2::GetColumnFilter", [&] { return listOf(L"column", column); },
        [&]
        {
            if (type != nullptr)
            {
                *type = MMC_STRING_FILTER | MMC_FILTER_NOVALUE;
            }
            return E_NOTIMPL;
        });
}

} // namespace Console
