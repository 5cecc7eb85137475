#include "ColumnStore.h"

namespace Console
{

std::string ColumnStore::keyOf(const CLSID& snapIn, const std::vector<BYTE>& columnSet)
{
    std::string key(reinterpret_cast<const char*>(&snapIn), sizeof snapIn);
    key.append(columnSet.begin(), columnSet.end());
    return key;
}

const ColumnStore::Settings* ColumnStore::find(const CLSID& snapIn, const std::vector<BYTE>& columnSet) const
{
    const auto found = m_settings.find(keyOf(snapIn, columnSet));
    return found == m_settings.end() ? nullptr : &found->second;
}

ColumnStore::Settings& ColumnStore::at(const CLSID& snapIn, const std::vector<BYTE>& columnSet)
{
    return m_settings[keyOf(snapIn, columnSet)];
}

void ColumnStore::apply(const CLSID& snapIn, ResultPane& pane) const
{
    const Settings* const kept = find(snapIn, pane.columnSet);
    if (kept == nullptr)
    {
        return;
    }
    if (kept->widths.size() == pane.columns.size())
    {
        for (std::size_t column = 0; column < pane.columns.size(); ++column)
        {
            pane.columns[column].width = kept->widths[column];
            pane.columns[column].hidden = kept->hidden[column];
        }
    }
    if (kept->sortColumn >= 0 && kept->sortColumn < static_cast<int>(pane.columns.size()) && pane.sortColumn < 0)
    {
        pane.sortColumn = kept->sortColumn;
        pane.sortDescending = kept->sortDescending;
    }
}

void ColumnStore::saveWidths(const CLSID& snapIn, const ResultPane& pane)
{
    Settings& kept = at(snapIn, pane.columnSet);
    kept.widths.clear();
    kept.hidden.clear();
    for (const Column& column : pane.columns)
    {
        kept.widths.push_back(column.width);
        kept.hidden.push_back(column.hidden);
    }
}

void ColumnStore::saveSort(const CLSID& snapIn, const ResultPane& pane)
{
    Settings& kept = at(snapIn, pane.columnSet);
    kept.sortColumn = pane.sortColumn;
    kept.sortDescending = pane.sortDescending;
}

} // namespace Console
