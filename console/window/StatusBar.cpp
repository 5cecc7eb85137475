#include "StatusBar.h"

#include "Dpi.h"
#include "Failure.h"

#include <commctrl.h>

#include <array>

namespace Console
{

namespace
{

// Widths of the middle and the right section at 96 dots per inch.
constexpr int middleWidth = 180;
constexpr int rightWidth = 180;
constexpr WPARAM middleSection = 1;
constexpr WPARAM helpSection = SB_SIMPLEID;

std::wstring countText(const View& view)
{
    if (view.pane() != View::Pane::list)
    {
        return {};
    }
    const int rows = view.rowCount();
    std::wstring text = rows == 1 ? L"1 item" : std::to_wstring(rows) + L" items";
    const std::size_t selected = view.multiSelect() ? view.selectedRows().size() : 0;
    if (selected > 0)
    {
        text += L", " + std::to_wstring(selected) + L" selected";
    }
    return text;
}

} // namespace

StatusBar::StatusBar(HWND parent)
    : m_control(CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | SBARS_SIZEGRIP, 0,
                                0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr)),
      m_progress(CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD, 0, 0, 0, 0, m_control, nullptr,
                                 GetModuleHandleW(nullptr), nullptr))
{
    if (m_control == nullptr || m_progress == nullptr)
    {
        throwLastError("CreateWindowEx");
    }
}

int StatusBar::height() const
{
    if ((GetWindowLongPtrW(m_control, GWL_STYLE) & WS_VISIBLE) == 0)
    {
        return 0;
    }
    RECT place{};
    GetWindowRect(m_control, &place);
    return place.bottom - place.top;
}

void StatusBar::setAppearance(HFONT font, int dpi)
{
    m_dpi = dpi;
    SendMessageW(m_control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    SendMessageW(m_control, SB_SETMINHEIGHT, static_cast<WPARAM>(lineHeight(m_control, font) + scaled(2, dpi)), 0);
    arrange();
}

void StatusBar::arrange()
{
    // The control takes its place by itself.
    SendMessageW(m_control, WM_SIZE, 0, 0);
    RECT area{};
    GetClientRect(m_control, &area);
    const int right = area.right - scaled(rightWidth, m_dpi);
    const std::array<int, 3> edges{right - scaled(middleWidth, m_dpi), right, -1};
    SendMessageW(m_control, SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));

    RECT middle{};
    SendMessageW(m_control, SB_GETRECT, middleSection, reinterpret_cast<LPARAM>(&middle));
    InflateRect(&middle, -scaled(2, m_dpi), -scaled(2, m_dpi));
    MoveWindow(m_progress, middle.left, middle.top, middle.right - middle.left, middle.bottom - middle.top, TRUE);
}

void StatusBar::show(const View& view)
{
    const View::Status& status = view.status();
    const std::wstring count = countText(view);
    const std::array<const std::wstring*, 3> texts{status.left.empty() ? &count : &status.left, &status.middle,
                                                   &status.right};
    for (WPARAM section = 0; section < texts.size(); ++section)
    {
        SendMessageW(m_control, SB_SETTEXTW, section, reinterpret_cast<LPARAM>(texts[section]->c_str()));
    }
    ShowWindow(m_progress, status.progress >= 0 ? SW_SHOWNA : SW_HIDE);
    if (status.progress >= 0)
    {
        SendMessageW(m_progress, PBM_SETPOS, static_cast<WPARAM>(status.progress), 0);
    }
}

void StatusBar::showHelp(const std::wstring& text)
{
    SendMessageW(m_control, SB_SIMPLE, TRUE, 0);
    SendMessageW(m_control, SB_SETTEXTW, helpSection | SBT_NOBORDERS, reinterpret_cast<LPARAM>(text.c_str()));
}

void StatusBar::endHelp()
{
    SendMessageW(m_control, SB_SIMPLE, FALSE, 0);
}

} // namespace Console
