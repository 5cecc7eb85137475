#include "ResultPane.h"

#include <utility>

namespace Console
{

void ResultPane::clear()
{
    kind = View::Pane::nothing;
    message.clear();
    special = nullptr;
    options = 0;
    shown = false;
    columns.clear();
    columnSet.clear();
    style = 0;
    sortColumn = -1;
    sortDescending = false;
    sortArrow = true;
    rows.clear();
    nodeRowsIn = false;
    virtualCount = 0;
    virtualSelection.clear();
    virtualFocus = -1;
    focus = 0;
    status = {};
    description.clear();
}

} // namespace Console
