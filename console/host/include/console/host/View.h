#pragma once

#include "console/host/Column.h"
#include "console/host/ContextMenu.h"
#include "console/host/Node.h"
#include "console/host/Toolbar.h"
#include "console/host/ViewListener.h"
#include "platform/mmc.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace Console
{

class ViewState;

// One view on the host's tree: which node it shows, and what the snap-in put into its result pane. It draws nothing;
// a window draws it. Rows are addressed by their place in the list, from 0, as it is now. Functions that take a row
// or column that is not there do nothing and answer with nothing.
class View
{
  public:
    explicit View(std::unique_ptr<ViewState> state);
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    // Deselects, takes the snap-ins' bars away, destroys their components.
    ~View();

    // Counted from 1; the number in Call::view.
    unsigned number() const;

    // --- the node -------------------------------------------------------------------------------------------------

    // Leaves the present node and shows that one, with the whole sequence of notifications; expands it first if it
    // never was. Selecting the present node again repeats the sequence. NodeId::none deselects. Inside a snap-in's
    // call the selection waits until that call has returned.
    void selectNode(NodeId node);
    NodeId selectedNode() const;

    // The window came to the front or left it; it was minimised or restored. The snap-in is told.
    void activate(bool active);
    void minimize(bool minimized);

    // --- the result pane ------------------------------------------------------------------------------------------

    enum class Pane
    {
        nothing, // no node selected
        list,    // rows as counted below (virtual lists too)
        message, // no list can be shown; message() says why, in one sentence
    };
    Pane pane() const;
    const std::wstring& message() const;

    // MMCLV_VIEWSTYLE_…: icons, report, small icons, list, filtered.
    int viewMode() const;
    void setViewMode(int mode);
    // Clicks on column headers sort.
    bool sortable() const;
    bool multiSelect() const;

    // By logical index. All column numbers in this class are logical.
    const std::vector<Column>& columns() const;
    // The user changed a width; it is kept for the next time that this kind of node is shown.
    void setColumnWidth(int column, int width);
    // Names the kind of node whose columns these are, the same from one run to the next: the snap-in's class id and the
    // column set that it gave the node (or the node's type). Empty when no list is shown.
    std::wstring columnSet() const;
    // The user clicked a header: sorts by it, the other way round when it is sorted by it already.
    void clickColumn(int column);
    // -1 when not sorted (or when the snap-in asked for no arrow).
    int sortColumn() const;
    bool sortDescending() const;

    int rowCount() const;
    // Asks the snap-in each time; empty when it fails.
    std::wstring rowText(int row, int column) const;
    // Index into smallImages() and largeImages(); -1 for none.
    int rowImage(int row) const;
    int rowIndent(int row) const;
    // The tree's node that the row stands for, or none for a row of the snap-in's own.
    NodeId rowNode(int row) const;
    // Tells a virtual list's snap-in which rows will be asked for (both ends included).
    void cacheHint(int first, int last) const;
    // The first row from start on whose first column begins with the text (any case), wrapping round; -1 for none.
    int findRow(const std::wstring& text, int start) const;

    // Lent; the lists stay the same ones for the view's life, their content is made anew at each selection.
    HIMAGELIST smallImages() const;
    HIMAGELIST largeImages() const;

    // --- selection ------------------------------------------------------------------------------------------------

    // Replaces the selection among the rows (any order) and tells the snap-in. Selecting rows puts the focus on the
    // list; selecting none leaves the node of the tree as the thing that commands act on. More than one row only
    // counts where multiSelect(); else the first is taken.
    void selectRows(const std::vector<int>& rows);
    std::vector<int> selectedRows() const;
    bool rowSelected(int row) const;
    // The row with the focus rectangle, -1 for none.
    int focusedRow() const;
    void setFocusedRow(int row);
    // The keyboard focus went to the tree (true) or to the list. Commands act on the tree's node while it is there,
    // and on the selected rows otherwise.
    void focusTree(bool tree);

    // --- commands -------------------------------------------------------------------------------------------------

    struct VerbState
    {
        bool visible = false;
        bool enabled = false;
    };
    // Of the thing that commands act on now.
    VerbState verb(MMC_CONSOLE_VERB verb) const;
    MMC_CONSOLE_VERB defaultVerb() const;
    // Does nothing unless the verb is enabled. RENAME comes back as renameNodeAsked or renameRowAsked.
    void runVerb(MMC_CONSOLE_VERB verb);

    // Double click or Enter on a row.
    void activateRow(int row);

    // The user's new name. True when the snap-in took it.
    bool renameNode(NodeId node, const std::wstring& name);
    bool renameRow(int row, const std::wstring& name);

    // The menu of a tree's node (selected or not), of the selected rows, and of the empty part of the list.
    ContextMenu nodeMenu(NodeId node);
    ContextMenu rowMenu();
    ContextMenu paneMenu();

    // --- what stands around the pane --------------------------------------------------------------------------------

    // Bars attached now, in the order of attaching.
    std::vector<Toolbar> toolbars() const;
    void pressToolbarButton(unsigned bar, int command);
    std::vector<MenuButton> menuButtons() const;
    // x and y: where the menu's top left corner goes, on the screen.
    void pressMenuButton(unsigned group, int command, int x, int y);

    // The three sections. The middle one may be a progress: then progress is 0 to 100, else -1.
    struct Status
    {
        std::wstring left;
        std::wstring middle;
        std::wstring right;
        int progress = -1;
    };
    const Status& status() const;
    const std::wstring& description() const;

    ViewState& state() const { return *m_state; }

  private:
    std::unique_ptr<ViewState> m_state;
};

} // namespace Console
