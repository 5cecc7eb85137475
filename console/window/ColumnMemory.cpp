#include "ColumnMemory.h"

#include "Settings.h"
#include "numberLine.h"

#include <algorithm>
#include <utility>

namespace Console
{

namespace
{

constexpr int widest = 10000;

Settings columnSettings()
{
    return Settings(L"Columns");
}

} // namespace

std::optional<std::vector<int>> rememberedWidths(const std::wstring& columnSet, std::size_t columns)
{
    const auto text = columnSettings().text(columnSet);
    if (columnSet.empty() || !text)
    {
        return std::nullopt;
    }
    auto widths = parseNumbers(*text, widest);
    const bool fits =
        widths && widths->size() == columns && std::ranges::all_of(*widths, [](int width) { return width >= 0; });
    return fits ? std::move(widths) : std::nullopt;
}

void rememberWidths(const std::wstring& columnSet, const std::vector<int>& widths)
{
    if (!columnSet.empty())
    {
        columnSettings().setText(columnSet, formatNumbers(widths));
    }
}

void applyRememberedWidths(View& view)
{
    const std::vector<Column>& columns = view.columns();
    const auto widths = rememberedWidths(view.columnSet(), columns.size());
    for (std::size_t i = 0; widths && i < columns.size(); ++i)
    {
        if (!columns[i].hidden && columns[i].width != (*widths)[i])
        {
            view.setColumnWidth(static_cast<int>(i), (*widths)[i]);
        }
    }
}

void rememberWidths(const View& view)
{
    std::vector<int> widths;
    for (const Column& column : view.columns())
    {
        widths.push_back(column.width);
    }
    rememberWidths(view.columnSet(), widths);
}

} // namespace Console
