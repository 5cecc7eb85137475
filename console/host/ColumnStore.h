#pragma once

#include "ResultPane.h"

#include <map>
#include <string>
#include <vector>

namespace Console
{

// How the user last arranged the columns of each kind of node, for as long as the host lives.
class ColumnStore
{
  public:
    struct Settings
    {
        std::vector<int> widths; // empty: never changed
        std::vector<bool> hidden;
        int sortColumn = -1;
        bool sortDescending = false;
    };

    // Puts what is kept into a pane that was just filled. Kept for another number of columns: left alone.
    void apply(const CLSID& snapIn, ResultPane& pane) const;
    void saveWidths(const CLSID& snapIn, const ResultPane& pane);
    void saveSort(const CLSID& snapIn, const ResultPane& pane);

    // For IColumnData. Null when nothing is kept.
    const Settings* find(const CLSID& snapIn, const std::vector<BYTE>& columnSet) const;
    Settings& at(const CLSID& snapIn, const std::vector<BYTE>& columnSet);

  private:
    // The bytes of both.
    static std::string keyOf(const CLSID& snapIn, const std::vector<BYTE>& columnSet);

    std::map<std::string, Settings> m_settings;
};

} // namespace Console
