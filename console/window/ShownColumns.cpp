#include "ShownColumns.h"

#include <commctrl.h>

namespace Console
{

namespace
{

constexpr int nameWidth = 250;

}

std::vector<Column> shownColumns(const View& view)
{
    std::vector<Column> columns = view.columns();
    if (columns.empty() && view.pane() == View::Pane::list)
    {
        columns.push_back({L"Name", LVCFMT_LEFT, nameWidth, false});
    }
    return columns;
}

} // namespace Console
