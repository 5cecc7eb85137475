#include "DetailsPane.h"

#include "Dpi.h"

#include <string>

namespace Console
{

namespace
{

// Around texts, at 96 dots per inch.
constexpr int margin = 6;
constexpr int iconSize = 32;

HWND createStatic(HWND parent, DWORD style)
{
    return CreateWindowExW(0, WC_STATICW, L"", WS_CHILD | style, 0, 0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr),
                           nullptr);
}

} // namespace

DetailsPane::DetailsPane(HWND parent, View& view, ResultList::Owner& owner)
    : Window({.className = L"TConsole.DetailsPane",
              .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
              .extendedStyle = WS_EX_CONTROLPARENT,
              .parent = parent,
              .background = GetSysColorBrush(COLOR_WINDOW)}),
      m_view(view),
      m_description(createStatic(handle(), SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE)),
      m_messageIcon(createStatic(handle(), SS_ICON)),
      m_message(createStatic(handle(), SS_NOPREFIX)),
      m_list(handle(), view, owner)
{
    SendMessageW(m_messageIcon, STM_SETICON, reinterpret_cast<WPARAM>(LoadIconW(nullptr, IDI_INFORMATION)), 0);
    takePane();
    takeDescription();
}

DetailsPane::~DetailsPane()
{
    destroy();
}

void DetailsPane::setAppearance(HFONT font, int dpi)
{
    m_font = font;
    m_dpi = dpi;
    SendMessageW(m_description, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    SendMessageW(m_message, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    m_list.setAppearance(font, dpi);
    arrange();
}

void DetailsPane::takePane()
{
    const bool list = m_view.pane() == View::Pane::list;
    const bool message = m_view.pane() == View::Pane::message;
    if (message)
    {
        SetWindowTextW(m_message, m_view.message().c_str());
    }
    ShowWindow(m_message, message ? SW_SHOW : SW_HIDE);
    ShowWindow(m_messageIcon, message ? SW_SHOW : SW_HIDE);
    ShowWindow(m_list.handle(), list ? SW_SHOW : SW_HIDE);
    if (list)
    {
        m_list.takeMode();
    }
    InvalidateRect(handle(), nullptr, TRUE);
}

void DetailsPane::takeDescription()
{
    const std::wstring& text = m_view.description();
    SetWindowTextW(m_description, text.c_str());
    ShowWindow(m_description, text.empty() ? SW_HIDE : SW_SHOW);
    arrange();
}

LRESULT DetailsPane::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SIZE:
        arrange();
        return 0;
    case WM_SETFOCUS:
        SetFocus(m_list.control());
        return 0;
    case WM_CTLCOLORSTATIC:
    {
        const bool description = reinterpret_cast<HWND>(lParam) == m_description;
        const int background = description ? COLOR_3DFACE : COLOR_WINDOW;
        SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(background));
        SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(description ? COLOR_BTNTEXT : COLOR_WINDOWTEXT));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(background));
    }
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

void DetailsPane::arrange()
{
    RECT area{};
    GetClientRect(handle(), &area);
    const int gap = scaled(margin, m_dpi);
    if ((GetWindowLongPtrW(m_description, GWL_STYLE) & WS_VISIBLE) != 0 && m_font != nullptr)
    {
        const int height = lineHeight(handle(), m_font) + gap;
        MoveWindow(m_description, area.left, area.top, area.right, height, TRUE);
        area.top += height;
    }
    MoveWindow(m_list.handle(), area.left, area.top, area.right, area.bottom - area.top, TRUE);

    const int text = 3 * gap + iconSize;
    MoveWindow(m_messageIcon, gap, area.top + 2 * gap, iconSize, iconSize, TRUE);
    MoveWindow(m_message, text, area.top + 2 * gap, area.right - text - gap, area.bottom - area.top - 2 * gap, TRUE);
}

} // namespace Console
