#include "ToolbarStrip.h"

#include "Dpi.h"
#include "Failure.h"
#include "resource.h"
#include "toolbarKeys.h"

#include "platform/handles.h"

#include <windowsx.h>

#include <array>
#include <utility>

namespace Console
{

namespace
{

struct OwnButton
{
    int command; // 0: a separator
    int icon;
    const wchar_t* tooltip;
};

constexpr std::array<OwnButton, 7> ownButtons{{
    {ID_GO_BACK, IDI_BACK, L"Back"},
    {ID_GO_FORWARD, IDI_FORWARD, L"Forward"},
    {ID_GO_UP, IDI_UP, L"Up one level"},
    {0, 0, nullptr},
    {ID_EDIT_DELETE, IDI_DELETE, L"Delete"},
    {ID_EDIT_PROPERTIES, IDI_PROPERTIES, L"Properties"},
    {ID_VIEW_REFRESH, IDI_REFRESH, L"Refresh"},
}};

HIMAGELIST loadOwnImages(int size)
{
    const HIMAGELIST images =
        ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(ownButtons.size()), 0);
    for (const OwnButton& button : ownButtons)
    {
        if (button.command != 0)
        {
            const platform::Icon icon(static_cast<HICON>(LoadImageW(
                GetModuleHandleW(nullptr), MAKEINTRESOURCEW(button.icon), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
            ImageList_AddIcon(images, icon.get());
        }
    }
    return images;
}

BYTE stateOf(const ToolbarButton& button)
{
    return static_cast<BYTE>((button.enabled ? TBSTATE_ENABLED : 0) | (button.checked ? TBSTATE_CHECKED : 0) |
                             (button.hidden ? TBSTATE_HIDDEN : 0) | (button.pressed ? TBSTATE_PRESSED : 0) |
                             (button.indeterminate ? TBSTATE_INDETERMINATE : 0));
}

void add(HWND control, const TBBUTTON& button)
{
    SendMessageW(control, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
}

void addSeparator(HWND control)
{
    TBBUTTON separator{};
    separator.fsStyle = BTNS_SEP;
    add(control, separator);
}

} // namespace

ToolbarStrip::ToolbarStrip(HWND parent, Owner& owner)
    : Window({.className = L"TConsole.ToolbarStrip",
              .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
              .parent = parent,
              .background = GetSysColorBrush(COLOR_3DFACE)}),
      m_owner(owner)
{
    m_control = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"Toolbar",
                                WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS |
                                    TBSTYLE_TRANSPARENT | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN,
                                0, 0, 0, 0, handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    if (m_control == nullptr)
    {
        throwLastError("CreateWindowEx");
    }
    SendMessageW(m_control, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    // With version 5 of its messages a bar takes more than one image list.
    SendMessageW(m_control, CCM_SETVERSION, 5, 0);
    SendMessageW(m_control, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS | TBSTYLE_EX_HIDECLIPPEDBUTTONS);
    serveKeys(m_control);
}

ToolbarStrip::~ToolbarStrip()
{
    destroy();
    ImageList_Destroy(m_ownImages);
}

int ToolbarStrip::height() const
{
    if ((GetWindowLongPtrW(handle(), GWL_STYLE) & WS_VISIBLE) == 0)
    {
        return 0;
    }
    const LRESULT size = SendMessageW(m_control, TB_GETBUTTONSIZE, 0, 0);
    return HIWORD(size) + scaled(4, m_dpi);
}

void ToolbarStrip::setAppearance(HFONT font, int dpi)
{
    m_dpi = dpi;
    SendMessageW(m_control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    ImageList_Destroy(std::exchange(m_ownImages, loadOwnImages(scaled(16, dpi))));
    SendMessageW(m_control, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_ownImages));
    build();
}

void ToolbarStrip::setSnapInButtons(std::vector<Toolbar> bars, std::vector<MenuButton> menuButtons)
{
    m_bars = std::move(bars);
    m_menuButtons = std::move(menuButtons);
    build();
}

void ToolbarStrip::enable(int command, bool enabled)
{
    if ((SendMessageW(m_control, TB_ISBUTTONENABLED, static_cast<WPARAM>(command), 0) != 0) != enabled)
    {
        SendMessageW(m_control, TB_ENABLEBUTTON, static_cast<WPARAM>(command), enabled);
    }
}

LRESULT ToolbarStrip::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SIZE:
        MoveWindow(m_control, scaled(2, m_dpi), scaled(2, m_dpi), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam), TRUE);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) >= ID_SNAPIN_BUTTON_FIRST && LOWORD(wParam) <= ID_SNAPIN_BUTTON_LAST)
        {
            press(LOWORD(wParam));
            return 0;
        }
        return SendMessageW(GetParent(handle()), message, LOWORD(wParam), 0);
    case WM_NOTIFY:
        return handleNotification(*reinterpret_cast<NMHDR*>(lParam));
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

LRESULT ToolbarStrip::handleNotification(NMHDR& header)
{
    if (header.code == TBN_DROPDOWN)
    {
        press(reinterpret_cast<NMTOOLBARW&>(header).iItem);
        return TBDDRET_DEFAULT;
    }
    if (header.code == TBN_GETINFOTIPW)
    {
        auto& tip = reinterpret_cast<NMTBGETINFOTIPW&>(header);
        for (const OwnButton& button : ownButtons)
        {
            if (button.command != 0 && button.command == tip.iItem)
            {
                lstrcpynW(tip.pszText, button.tooltip, tip.cchTextMax);
            }
        }
        const auto place = static_cast<std::size_t>(tip.iItem - ID_SNAPIN_BUTTON_FIRST);
        if (place < m_buttons.size())
        {
            lstrcpynW(tip.pszText, m_buttons[place].tooltip.c_str(), tip.cchTextMax);
        }
    }
    return 0;
}

void ToolbarStrip::build()
{
    if (m_ownImages == nullptr)
    {
        return;
    }
    SendMessageW(m_control, WM_SETREDRAW, FALSE, 0);
    while (SendMessageW(m_control, TB_DELETEBUTTON, 0, 0))
    {
    }
    m_buttons.clear();
    m_images.clear();
    addOwnButtons();
    int list = 0;
    for (const Toolbar& bar : m_bars)
    {
        ++list;
        const HIMAGELIST images = m_images.emplace_back().make(bar.images, scaled(16, m_dpi));
        SendMessageW(m_control, TB_SETIMAGELIST, static_cast<WPARAM>(list), reinterpret_cast<LPARAM>(images));
        addSeparator(m_control);
        for (const ToolbarButton& button : bar.buttons)
        {
            addSnapInButton(button, bar.id, list);
        }
    }
    if (!m_menuButtons.empty())
    {
        addSeparator(m_control);
    }
    for (const MenuButton& button : m_menuButtons)
    {
        addMenuButton(button);
    }
    SendMessageW(m_control, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(handle(), nullptr, TRUE);
}

void ToolbarStrip::addOwnButtons()
{
    int image = 0;
    for (const OwnButton& own : ownButtons)
    {
        if (own.command == 0)
        {
            addSeparator(m_control);
            continue;
        }
        TBBUTTON button{};
        button.idCommand = own.command;
        button.iBitmap = image++;
        button.fsStyle = BTNS_AUTOSIZE;
        // Not shown without BTNS_SHOWTEXT; it is what screen readers say.
        button.iString = reinterpret_cast<INT_PTR>(own.tooltip);
        add(m_control, button);
    }
}

void ToolbarStrip::addSnapInButton(const ToolbarButton& button, unsigned bar, int imageList)
{
    if (button.separator)
    {
        addSeparator(m_control);
        return;
    }
    TBBUTTON entry{};
    entry.idCommand = ID_SNAPIN_BUTTON_FIRST + static_cast<int>(m_buttons.size());
    entry.iBitmap = button.image >= 0 ? MAKELONG(button.image, imageList) : I_IMAGENONE;
    entry.fsState = stateOf(button);
    entry.fsStyle = static_cast<BYTE>(BTNS_AUTOSIZE | (button.checkable ? BTNS_CHECK : BTNS_BUTTON));
    m_buttons.push_back({bar, button.command, false, button.tooltip.empty() ? button.text : button.tooltip});
    // A button without a picture is only its text; with one its text is what screen readers say.
    const bool isText = button.image < 0;
    const std::wstring& text = isText || !button.text.empty() ? button.text : m_buttons.back().tooltip;
    entry.fsStyle |= static_cast<BYTE>(isText ? BTNS_SHOWTEXT : 0);
    entry.iString = reinterpret_cast<INT_PTR>(text.c_str());
    add(m_control, entry);
}

void ToolbarStrip::addMenuButton(const MenuButton& button)
{
    TBBUTTON entry{};
    entry.idCommand = ID_SNAPIN_BUTTON_FIRST + static_cast<int>(m_buttons.size());
    entry.iBitmap = I_IMAGENONE;
    entry.fsState = static_cast<BYTE>((button.enabled ? TBSTATE_ENABLED : 0) | (button.hidden ? TBSTATE_HIDDEN : 0) |
                                      (button.pressed ? TBSTATE_PRESSED : 0));
    entry.fsStyle = BTNS_AUTOSIZE | BTNS_SHOWTEXT | BTNS_WHOLEDROPDOWN;
    entry.iString = reinterpret_cast<INT_PTR>(button.text.c_str());
    m_buttons.push_back({button.id, button.command, true, button.tooltip});
    add(m_control, entry);
}

void ToolbarStrip::press(int number)
{
    const auto place = static_cast<std::size_t>(number - ID_SNAPIN_BUTTON_FIRST);
    if (place >= m_buttons.size())
    {
        return;
    }
    // A copy: the snap-in may change its bars while it answers.
    const SnapInButton button = m_buttons[place];
    if (!button.menu)
    {
        m_owner.buttonPressed(button.bar, button.command);
        return;
    }
    RECT area{};
    SendMessageW(m_control, TB_GETRECT, static_cast<WPARAM>(number), reinterpret_cast<LPARAM>(&area));
    POINT corner{area.left, area.bottom};
    ClientToScreen(m_control, &corner);
    m_owner.menuButtonPressed(button.bar, button.command, corner);
}

} // namespace Console
