#pragma once

#include "DetailsPane.h"
#include "History.h"
#include "TreePane.h"

#include "console/host/Host.h"

#include <deque>
#include <functional>
#include <memory>

namespace Console
{

// One view and the two panes that show it: passes on what the user does to the host and what the host reports to the
// panes. Only one thing is done at a time: what the user does while a snap-in is busy (or has a box of its own open
// over a window that is not disabled) waits or is refused.
class ViewController final : private TreePane::Owner,
                             private ResultList::Owner,
                             private ViewListener,
                             private HostListener
{
  public:
    enum Change : unsigned
    {
        pane = 0x1,
        columns = 0x2,
        rows = 0x4,
        looks = 0x8, // of rows that stay where they are
        selection = 0x10,
        verbs = 0x20,
        toolbars = 0x40,
        status = 0x80,
        description = 0x100,
        node = 0x200,
        everything = 0x3FF,
    };

    class Frame
    {
      public:
        virtual ~Frame() = default;
        virtual HWND window() = 0;
        // What the frame itself shows of the view is to be taken from it again. changes: Change bits.
        virtual void viewChanged(unsigned changes) = 0;
        virtual void newWindowAsked(NodeId node, const std::wstring& title) = 0;
    };

    // The frame's window passes this message to processPending.
    static constexpr UINT pendingMessage = WM_APP + 1;

    // top: as for TreePane. frame is lent.
    // keepWidths: column widths are taken from the user's last run and kept for the next.
    ViewController(Host& host, NodeId top, bool keepWidths, Frame& frame);
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;
    ~ViewController() override;

    Host& host() const { return m_host; }
    View& view() const { return *m_view; }
    TreePane& tree() const { return *m_tree; }
    DetailsPane& results() const { return *m_results; }
    bool treeHasFocus() const { return m_treeFocused; }
    void setAppearance(HFONT font, int dpi);

    // Does all that waits, and draws what changed.
    void processPending();
    // A call of the host runs.
    bool acting() const { return m_acting; }
    bool hasPending() const { return m_changes != 0 || !m_later.empty(); }

    // Runs something that calls the host, with the wait cursor, after what waits. False, and nothing done, while
    // another such thing runs.
    bool act(const std::function<void()>& action);

    void selectNode(NodeId node);
    void selectRow(int row);
    void goBack();
    void goForward();
    void goUp();
    bool canGoBack() const { return m_history.canGoBack(); }
    bool canGoForward() const { return m_history.canGoForward(); }
    bool canGoUp() const;
    void runVerb(MMC_CONSOLE_VERB verb);
    // What the snap-in copies where it has the verb; else the text of the selected rows, or of the node where the tree
    // has the focus or no row is selected.
    void copy();
    void setViewMode(int mode);
    void switchPane();
    void focusPane();

    // The menu of what commands act on now.
    ContextMenu menu();
    // For as long as a menu from menu() lives.
    void setMenuOpen(bool open) { m_menuOpen = open; }

  private:
    bool treeIsFree() override { return !m_acting && !m_menuOpen; }
    void nodeChosen(NodeId node) override;
    void nodeOpening(NodeId node) override;
    bool nodeRenamable(NodeId node) override;
    void nodeRenamed(NodeId node, const std::wstring& name) override;
    void nodeMenuWanted(NodeId node, POINT screen) override;
    void treeFocused() override { focusMoved(true); }

    void rowsChosen() override;
    void rowActivated(int row) override;
    bool rowRenamable(int row) override;
    void rowRenamed(int row, const std::wstring& name) override;
    void columnClicked(int column) override;
    void columnResized(int column, int width) override;
    void rowMenuWanted(POINT screen) override;
    void paneMenuWanted(POINT screen) override;
    void listFocused() override { focusMoved(false); }

    void nodeSelected(NodeId node) override;
    void paneChanged() override { note(pane); }
    void columnsChanged() override { note(columns); }
    void rowsChanged() override { note(rows); }
    void rowChanged(int) override { note(looks); }
    void selectionChanged() override { note(selection); }
    void verbsChanged() override { note(verbs); }
    void toolbarsChanged() override { note(toolbars); }
    void statusTextChanged() override { note(status); }
    void descriptionChanged() override { note(description); }
    void expandAsked(NodeId node, bool expand) override;
    void renameNodeAsked(NodeId node) override;
    void renameRowAsked(int row) override;

    void nodeInserted(NodeId node) override;
    void nodeRemoved(NodeId node) override;
    void nodeChanged(NodeId node) override;
    void newWindowAsked(NodeId node, DWORD options, const std::wstring& title) override;

    // Commands are about the selected rows, not about the node.
    bool actsOnRows() const;

    void note(unsigned changes);
    void later(std::function<void()> action);
    void wakeUp();
    void takeChanges();
    void runLater();
    void focusMoved(bool tree);
    void tellFocus();
    void takeUserSelection();
    void showMenu(const std::function<ContextMenu()>& open, POINT screen);

    Host& m_host;
    Frame& m_frame;
    bool m_keepWidths;
    std::unique_ptr<View> m_view;
    std::unique_ptr<TreePane> m_tree;
    std::unique_ptr<DetailsPane> m_results;
    History m_history;
    unsigned m_changes = 0;
    std::deque<std::function<void()>> m_later;
    bool m_woken = false;
    bool m_acting = false;
    bool m_menuOpen = false;
    bool m_selectionPending = false;
    bool m_widthsPending = false;
    bool m_renameAsked = false; // by the host, not by a click of the user
    bool m_treeFocused = true;
    bool m_toldTreeFocused = true;
};

} // namespace Console
