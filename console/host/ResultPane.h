#pragma once

#include "ResultRows.h"
#include "console/host/Column.h"
#include "console/host/View.h"

#include <set>
#include <string>
#include <vector>

namespace Console
{

// What one view's result pane holds: kind, columns, rows, sorting, texts around it. Just the state; made empty at
// each change of node.
struct ResultPane
{
    View::Pane kind = View::Pane::nothing;
    std::wstring message;
    LPDATAOBJECT special = nullptr; // what stands for the selection in a pane without a list; DOBJ_…
    long options = 0;               // MMC_VIEW_OPTIONS_…
    // SHOW(TRUE) was sent and SHOW(FALSE) not yet: the snap-in may fill the pane.
    bool shown = false;

    std::vector<Column> columns;
    std::vector<BYTE> columnSet;
    int mode = MMCLV_VIEWSTYLE_REPORT;
    unsigned style = 0; // MMC_RESULT_VIEW_STYLE bits
    int sortColumn = -1;
    bool sortDescending = false;
    bool sortArrow = true;

    ResultRows rows;
    bool nodeRowsIn = false; // the rows of the node's children are there
    // A virtual list has no rows of its own, only a number of them.
    int virtualCount = 0;
    std::set<int> virtualSelection;
    // Place of the focused row in a virtual list; id in an ordinary one. -1 and 0 for none.
    int virtualFocus = -1;
    LONG_PTR focus = 0;

    View::Status status;
    std::wstring description;

    bool isVirtual() const { return (options & MMC_VIEW_OPTIONS_OWNERDATALIST) != 0; }
    bool showsNodes() const { return !isVirtual() && (options & MMC_VIEW_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST) == 0; }
    bool multiSelect() const { return (options & MMC_VIEW_OPTIONS_MULTISELECT) != 0 && (style & MMC_SINGLESEL) == 0; }
    int rowCount() const { return isVirtual() ? virtualCount : rows.count(); }

    // Everything but the mode, which a view keeps.
    void clear();
};

} // namespace Console
