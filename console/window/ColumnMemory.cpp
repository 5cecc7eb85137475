#include "ColumnMemory.h"

#include "Settings.h"

#include <sstream>

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
    std::vector<int> widths;
    std::wistringstream numbers(*text);
    for (int width = 0; numbers >> width && width >= 0 && width <= widest;)
    {
        widths.push_back(width);
    }
    return numbers.eof() && widths.size() == columns ? std::optional(widths) : std::nullopt;
}

void rememberWidths(const std::wstring& columnSet, const std::vector<int>& widths)
{
    if (columnSet.empty())
    {
        return;
    }
    std::wostringstream text;
    for (const int width : widths)
    {
        text << (text.tellp() > 0 ? L" " : L"") << width;
    }
    columnSettings().setText(columnSet, text.str());
}

} // namespace Console
