#include "MainWindow.h"

#include "AboutBoxes.h"
#include "Dpi.h"
#include "MenuBar.h"
#include "MenuPresenter.h"
#include "resource.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Console
{

namespace
{

// At 96 dots per inch.
constexpr int smallestPane = 60;
constexpr int splitterWidth = 5;

constexpr UINT menuEndMessage = WM_APP + 2;
constexpr WPARAM firstRound = 0;
constexpr WPARAM secondRound = 1;

constexpr int actionMenuPlace = 1;

HICON loadIcon(int metric)
{
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_CONSOLE), IMAGE_ICON,
                                         GetSystemMetrics(metric), GetSystemMetrics(metric), LR_SHARED));
}

} // namespace

MainWindow::MainWindow(Host& host, Options options)
    : Window({.className = L"TConsole.MainWindow",
              .title = L"TConsole",
              .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
              .menu = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDM_MAIN)),
              .icon = loadIcon(SM_CXICON),
              .smallIcon = loadIcon(SM_CXSMICON),
              .background = GetSysColorBrush(COLOR_3DFACE)}),
      m_options(std::move(options)),
      m_placement(startPlacement(m_options.remember, m_options.size, dpiOf(handle()))),
      m_dpi(dpiOf(handle())),
      m_toolbar(handle(), *this),
      m_statusBar(handle()),
      m_splitter(handle(),
                 [this](int left)
                 {
                     m_placement.treeWidth = unscaled(left, m_dpi);
                     arrange();
                 })
{
    m_controller = std::make_unique<ViewController>(host, m_options.top, m_options.remember,
                                                    static_cast<ViewController::Frame&>(*this));
    setDpi(m_dpi);
    const RECT& place = m_placement.normal;
    SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    viewChanged(ViewController::everything);
}

MainWindow::~MainWindow()
{
    destroy();
}

void MainWindow::show(int show)
{
    const bool plain = show == SW_SHOWNORMAL || show == SW_SHOWDEFAULT || show == SW_SHOW;
    ShowWindow(handle(), m_placement.maximized && plain ? SW_SHOWMAXIMIZED : show);
    UpdateWindow(handle());
}

bool MainWindow::translate(MSG& message) const
{
    // While a name is edited in place, keys such as Delete belong to the text.
    std::array<wchar_t, 8> type{};
    GetClassNameW(message.hwnd, type.data(), static_cast<int>(type.size()));
    if (handle() == nullptr || message.hwnd == nullptr || type.data() == std::wstring(L"Edit") ||
        (message.hwnd != handle() && !IsChild(handle(), message.hwnd)))
    {
        return false;
    }
    static const HACCEL keys = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDA_MAIN));
    return TranslateAcceleratorW(handle(), keys, &message) != 0;
}

LRESULT MainWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_controller)
    {
        return Window::handleMessage(message, wParam, lParam);
    }
    switch (message)
    {
    case ViewController::pendingMessage:
        m_controller->processPending();
        return 0;
    case WM_SIZE:
        handleSize(static_cast<UINT>(wParam));
        return 0;
    case WM_SETFOCUS:
        m_controller->focusPane();
        return 0;
    case WM_ACTIVATE:
        handleActivation(LOWORD(wParam) != WA_INACTIVE);
        return Window::handleMessage(message, wParam, lParam);
    case WM_DPICHANGED:
    {
        const RECT& place = *reinterpret_cast<const RECT*>(lParam);
        setDpi(HIWORD(wParam));
        SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    case WM_SETTINGCHANGE:
        setDpi(m_dpi);
        return Window::handleMessage(message, wParam, lParam);
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {scaled(320, m_dpi), scaled(240, m_dpi)};
        return 0;
    case WM_INITMENUPOPUP:
        handleMenuOpening(reinterpret_cast<HMENU>(wParam));
        return 0;
    case WM_MENUSELECT:
        m_statusBar.showHelp(menuHelp(wParam, lParam));
        return 0;
    case WM_EXITMENULOOP:
        handleMenuLoopEnd();
        return 0;
    case menuEndMessage:
        // A command that was chosen is posted too, and may stand behind the first round.
        if (wParam == firstRound)
        {
            PostMessageW(handle(), menuEndMessage, secondRound, 0);
        }
        else
        {
            m_action.release();
        }
        return 0;
    case WM_COMMAND:
        handleCommand(LOWORD(wParam));
        return 0;
    case WM_CLOSE:
        // A snap-in is in the middle of something, with a box that does not disable this window.
        if (m_controller->acting())
        {
            MessageBeep(MB_ICONWARNING);
            return 0;
        }
        return Window::handleMessage(message, wParam, lParam);
    case WM_DESTROY:
        handleDestruction();
        return 0;
    default:
        return Window::handleMessage(message, wParam, lParam);
    }
}

void MainWindow::handleActivation(bool active)
{
    if (active)
    {
        m_controller->host().setFrame(handle());
    }
    // Boxes of the snap-in's own call do not count.
    if (active != m_toldActive && m_controller->act([&] { m_controller->view().activate(active); }))
    {
        m_toldActive = active;
    }
}

void MainWindow::handleSize(UINT kind)
{
    const bool minimized = kind == SIZE_MINIMIZED;
    if (minimized != m_toldMinimized && m_controller->act([&] { m_controller->view().minimize(minimized); }))
    {
        m_toldMinimized = minimized;
    }
    if (!minimized)
    {
        arrange();
    }
}

void MainWindow::handleCommand(int command)
{
    if (command >= ID_ACTION_FIRST && command <= ID_ACTION_LAST)
    {
        m_action.run(static_cast<unsigned>(command - ID_ACTION_FIRST));
        return;
    }
    m_action.release();
    switch (command)
    {
    case ID_FILE_EXIT:
        SendMessageW(handle(), WM_CLOSE, 0, 0);
        return;
    case ID_HELP_ABOUT:
        showAbout(false);
        return;
    case ID_HELP_ABOUT_SNAPIN:
        showAbout(true);
        return;
    case ID_GO_BACK:
        m_controller->goBack();
        return;
    case ID_GO_FORWARD:
        m_controller->goForward();
        return;
    case ID_GO_UP:
        m_controller->goUp();
        return;
    case ID_CONTEXT_MENU:
    {
        const HWND pane =
            m_controller->treeHasFocus() ? m_controller->tree().handle() : m_controller->results().list().handle();
        SendMessageW(pane, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(pane), -1);
        return;
    }
    case ID_NEXT_PANE:
    case ID_PREVIOUS_PANE:
        // There are two, so both ways lead to the other one.
        m_controller->switchPane();
        return;
    case ID_NEXT_AREA:
        switchArea(1);
        return;
    case ID_PREVIOUS_AREA:
        switchArea(-1);
        return;
    default:
        handleViewCommand(command);
        handleEditCommand(command);
    }
}

void MainWindow::handleViewCommand(int command)
{
    switch (command)
    {
    case ID_VIEW_REFRESH:
        refresh();
        return;
    case ID_VIEW_LARGE_ICONS:
    case ID_VIEW_DETAILS:
    case ID_VIEW_SMALL_ICONS:
    case ID_VIEW_LIST:
        // The commands stand in the order of the view modes' numbers.
        m_controller->setViewMode(MMCLV_VIEWSTYLE_ICON + command - ID_VIEW_LARGE_ICONS);
        return;
    case ID_VIEW_TOOLBAR:
        m_placement.toolbar = !m_placement.toolbar;
        arrange();
        return;
    case ID_VIEW_STATUS_BAR:
        m_placement.statusBar = !m_placement.statusBar;
        arrange();
        return;
    default:
        return;
    }
}

void MainWindow::handleEditCommand(int command)
{
    constexpr std::array<std::pair<int, MMC_CONSOLE_VERB>, 6> verbs{{
        {ID_EDIT_DELETE, MMC_VERB_DELETE},
        {ID_EDIT_RENAME, MMC_VERB_RENAME},
        {ID_EDIT_PROPERTIES, MMC_VERB_PROPERTIES},
        {ID_EDIT_CUT, MMC_VERB_CUT},
        {ID_EDIT_PASTE, MMC_VERB_PASTE},
        {ID_EDIT_PRINT, MMC_VERB_PRINT},
    }};
    for (const auto& [number, verb] : verbs)
    {
        if (number == command)
        {
            m_controller->runVerb(verb);
            return;
        }
    }
    if (command == ID_EDIT_COPY)
    {
        m_controller->copy();
    }
    if (command == ID_EDIT_SELECT_ALL && !m_controller->treeHasFocus())
    {
        m_controller->results().list().selectAll();
    }
}

void MainWindow::switchArea(int step)
{
    std::vector<HWND> areas{m_controller->tree().control()};
    if (m_controller->view().pane() == View::Pane::list)
    {
        areas.push_back(m_controller->results().list().control());
    }
    if (m_placement.toolbar)
    {
        areas.push_back(m_toolbar.control());
    }
    const auto count = static_cast<int>(areas.size());
    const auto present = static_cast<int>(std::ranges::find(areas, GetFocus()) - areas.begin()) % count;
    SetFocus(areas[static_cast<std::size_t>((present + step + count) % count)]);
}

void MainWindow::refresh()
{
    if (m_controller->view().verb(MMC_VERB_REFRESH).enabled)
    {
        m_controller->runVerb(MMC_VERB_REFRESH);
    }
    else
    {
        // A snap-in without a refresh of its own fills its list when it is shown.
        m_controller->selectNode(m_controller->view().selectedNode());
    }
}

void MainWindow::handleMenuOpening(HMENU menu)
{
    if (menu == GetSubMenu(GetMenu(handle()), actionMenuPlace))
    {
        m_action.fill(*m_controller, menu);
        return;
    }
    const SnapIn* const snapIn = shownSnapIn();
    updateMenu(menu, m_controller->view(), m_placement,
               snapIn != nullptr ? m_controller->host().tree().text(snapIn->root()) : std::wstring());
}

void MainWindow::handleMenuLoopEnd()
{
    m_statusBar.endHelp();
    if (m_action.isOpen())
    {
        PostMessageW(handle(), menuEndMessage, firstRound, 0);
    }
}

void MainWindow::handleDestruction()
{
    if (m_options.remember && m_options.top == NodeId::none)
    {
        rememberPlacement(handle(), m_placement);
    }
    m_action.release();
    m_controller.reset();
}

void MainWindow::viewChanged(unsigned changes)
{
    if (!m_controller)
    {
        return;
    }
    if ((changes & ViewController::toolbars) != 0)
    {
        m_toolbar.setSnapInButtons(m_controller->view().toolbars(), m_controller->view().menuButtons());
        arrange();
    }
    if ((changes & ViewController::node) != 0)
    {
        updateTitle();
    }
    if ((changes &
         (ViewController::status | ViewController::rows | ViewController::selection | ViewController::pane)) != 0)
    {
        m_statusBar.show(m_controller->view());
    }
    updateCommands();
}

void MainWindow::newWindowAsked(NodeId node, const std::wstring& title)
{
    if (m_options.newWindow)
    {
        m_options.newWindow(node, title);
    }
}

void MainWindow::buttonPressed(unsigned bar, int command)
{
    m_controller->act([&] { m_controller->view().pressToolbarButton(bar, command); });
}

void MainWindow::menuButtonPressed(unsigned group, int command, POINT corner)
{
    m_controller->act([&] { m_controller->view().pressMenuButton(group, command, corner.x, corner.y); });
}

void MainWindow::setDpi(int dpi)
{
    m_dpi = dpi;
    platform::Font font = messageFont(dpi);
    m_toolbar.setAppearance(font.get(), dpi);
    m_statusBar.setAppearance(font.get(), dpi);
    m_controller->setAppearance(font.get(), dpi);
    // Only now nobody uses the old one any more.
    m_font = std::move(font);
    updateCommands();
    arrange();
}

void MainWindow::arrange()
{
    ShowWindow(m_toolbar.handle(), m_placement.toolbar ? SW_SHOW : SW_HIDE);
    ShowWindow(m_statusBar.control(), m_placement.statusBar ? SW_SHOW : SW_HIDE);
    m_statusBar.arrange();

    RECT area{};
    GetClientRect(handle(), &area);
    const int top = m_toolbar.height();
    const int height = std::max(0L, area.bottom - m_statusBar.height() - top);
    const int smallest = scaled(smallestPane, m_dpi);
    const int bar = scaled(splitterWidth, m_dpi);
    const int tree = std::max(
        smallest, std::min(scaled(m_placement.treeWidth, m_dpi), static_cast<int>(area.right) - bar - smallest));
    MoveWindow(m_toolbar.handle(), 0, 0, area.right, top, TRUE);
    MoveWindow(m_controller->tree().handle(), 0, top, tree, height, TRUE);
    MoveWindow(m_splitter.handle(), tree, top, bar, height, TRUE);
    MoveWindow(m_controller->results().handle(), tree + bar, top,
               std::max(0, static_cast<int>(area.right) - tree - bar), height, TRUE);
}

void MainWindow::updateTitle()
{
    std::wstring title = m_options.title;
    const SnapIn* snapIn = shownSnapIn();
    if (title.empty() && snapIn != nullptr)
    {
        title = m_controller->host().tree().text(snapIn->root());
    }
    SetWindowTextW(handle(), title.empty() ? L"TConsole" : (title + L" - TConsole").c_str());
}

void MainWindow::updateCommands()
{
    const View& view = m_controller->view();
    m_toolbar.enable(ID_GO_BACK, m_controller->canGoBack());
    m_toolbar.enable(ID_GO_FORWARD, m_controller->canGoForward());
    m_toolbar.enable(ID_GO_UP, m_controller->canGoUp());
    m_toolbar.enable(ID_EDIT_DELETE, view.verb(MMC_VERB_DELETE).enabled);
    m_toolbar.enable(ID_EDIT_PROPERTIES, view.verb(MMC_VERB_PROPERTIES).enabled);
    m_toolbar.enable(ID_VIEW_REFRESH, view.selectedNode() != NodeId::none);
}

void MainWindow::showAbout(bool snapIn)
{
    const SnapIn* shown = shownSnapIn();
    if (!snapIn)
    {
        showAboutConsole(handle());
    }
    else if (shown != nullptr)
    {
        showAboutSnapIn(handle(), shown->clsid(), m_controller->host().tree().text(shown->root()));
    }
}

SnapIn* MainWindow::shownSnapIn() const
{
    const ScopeTree& tree = m_controller->host().tree();
    const NodeId node = m_controller->view().selectedNode();
    SnapIn* snapIn = tree.snapIn(node);
    const std::vector<NodeId> roots = tree.roots();
    return snapIn != nullptr || roots.empty() ? snapIn : tree.snapIn(roots.front());
}

} // namespace Console
