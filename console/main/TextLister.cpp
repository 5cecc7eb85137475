#include "TextLister.h"

#include <algorithm>

namespace Console
{

namespace
{

std::wstring oneLine(std::wstring text)
{
    std::replace_if(
        text.begin(), text.end(), [](wchar_t c) { return c < L' '; }, L' ');
    return text;
}

std::wstring indent(std::size_t depth)
{
    return std::wstring(2 * depth, L' ');
}

} // namespace

void TextLister::beginNode(const NodeListing& node)
{
    m_sink(indent(m_depth) + L"+ " + oneLine(node.name) + L"\n");
    ++m_depth;
    if (!node.message.empty())
    {
        m_sink(indent(m_depth) + L"(" + oneLine(node.message) + L")\n");
    }
    if (node.columns.empty())
    {
        return;
    }

    std::vector<std::wstring> titles;
    std::vector<std::size_t> widths;
    for (const NodeListing::Column& column : node.columns)
    {
        titles.push_back(oneLine(column.title));
        widths.push_back(titles.back().size());
    }
    std::vector<std::vector<std::wstring>> lines;
    for (const NodeListing::Row& row : node.rows)
    {
        std::vector<std::wstring>& line = lines.emplace_back();
        for (std::size_t column = 0; column < widths.size(); ++column)
        {
            line.push_back(oneLine(row.cells[column]));
            widths[column] = std::max(widths[column], line.back().size());
        }
    }

    writeLine(titles, widths);
    for (const std::vector<std::wstring>& line : lines)
    {
        writeLine(line, widths);
    }
}

void TextLister::endNode()
{
    --m_depth;
}

void TextLister::writeLine(const std::vector<std::wstring>& cells, const std::vector<std::size_t>& widths)
{
    std::wstring line = indent(m_depth);
    for (std::size_t column = 0; column < cells.size(); ++column)
    {
        line += column == 0 ? L"| " : L" | ";
        line += cells[column];
        line.append(widths[column] - cells[column].size(), L' ');
    }
    line.erase(line.find_last_not_of(L' ') + 1);
    m_sink(line + L"\n");
}

} // namespace Console
