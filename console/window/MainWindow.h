#pragma once

#include "ActionMenu.h"
#include "Splitter.h"
#include "StatusBar.h"
#include "ToolbarStrip.h"
#include "ViewController.h"
#include "Window.h"
#include "WindowPlacement.h"

#include "platform/handles.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Console
{

// A console window: menus, toolbar, the two panes of one view, status bar.
class MainWindow final : public Window, private ViewController::Frame, private ToolbarStrip::Owner
{
  public:
    struct Options
    {
        // The only node at the top of the tree; none for all snap-ins of the host.
        NodeId top = NodeId::none;
        // Empty: the name of the snap-in shown.
        std::wstring title;
        // Nothing: as it was the last time.
        std::optional<SIZE> size;
        // Keeps its place and the column widths for the next time.
        bool remember = true;
        // A snap-in wants another window on that node.
        std::function<void(NodeId node, const std::wstring& title)> newWindow;
    };

    // Not shown yet; nothing is selected.
    MainWindow(Host& host, Options options);
    ~MainWindow() override;

    // show: SW_… as wWinMain got it; a window that was maximised the last time is so again.
    void show(int show);
    ViewController& controller() const { return *m_controller; }

    // A message from the loop: true when it was one of this window's keys and is done.
    bool translate(MSG& message) const;

  private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void handleActivation(bool active);
    void handleSize(UINT kind);
    void handleCommand(int command);
    void handleViewCommand(int command);
    void handleEditCommand(int command);
    // To the tree, the list, the toolbar and so round.
    void switchArea(int step);
    void handleMenuOpening(HMENU menu);
    void handleMenuLoopEnd();
    void handleDestruction();

    HWND window() override { return handle(); }
    void viewChanged(unsigned changes) override;
    void newWindowAsked(NodeId node, const std::wstring& title) override;
    void buttonPressed(unsigned bar, int command) override;
    void menuButtonPressed(unsigned group, int command, POINT corner) override;

    void setDpi(int dpi);
    void arrange();
    void refresh();
    void updateTitle();
    void updateCommands();
    void showAbout(bool snapIn);
    SnapIn* shownSnapIn() const;

    Options m_options;
    WindowPlacement m_placement;
    int m_dpi;
    platform::Font m_font;
    ToolbarStrip m_toolbar;
    StatusBar m_statusBar;
    Splitter m_splitter;
    std::unique_ptr<ViewController> m_controller;
    ActionMenu m_action;
    bool m_toldActive = false;
    bool m_toldMinimized = false;
};

} // namespace Console
