#include "rowText.h"

#include "ShownColumns.h"

#include <algorithm>

namespace Console
{

namespace
{

std::wstring cellText(const View& view, int row, int column)
{
    std::wstring text = view.rowText(row, column);
    std::ranges::replace_if(
        text, [](wchar_t c) { return c == L'\t' || c == L'\r' || c == L'\n'; }, L' ');
    return text;
}

} // namespace

std::wstring selectedRowsAsText(const View& view)
{
    const std::vector<Column> columns = shownColumns(view);
    std::wstring text;
    for (const int row : view.selectedRows())
    {
        text += text.empty() ? L"" : L"\r\n";
        bool first = true;
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            if (!columns[i].hidden)
            {
                text += first ? L"" : L"\t";
                text += cellText(view, row, static_cast<int>(i));
                first = false;
            }
        }
    }
    return text;
}

} // namespace Console
