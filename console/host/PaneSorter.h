#pragma once

#include "ResultRows.h"

#include <windows.h>

#include <vector>

namespace Console
{

class ViewState;

// Sorts the rows of a view: by the snap-in's own comparison where it has one, else by the texts.
class PaneSorter
{
  public:
    explicit PaneSorter(ViewState& view) : m_view(view) {}

    // IResultData::Sort. E_INVALIDARG for a column that is not there.
    HRESULT sort(int column, DWORD options, LPARAM user);
    // The user's click: turns the order round when it is sorted by that column. Tells the snap-in.
    void click(int column);
    // The order in which these columns were last sorted, if any.
    void applySaved();

  private:
    HRESULT sortVirtual(int column, DWORD options, LPARAM user);
    bool sortBySnapIn(std::vector<Row*>& rows, int column, bool descending, LPARAM user);
    void sortByText(std::vector<Row*>& rows, int column, bool descending);

    ViewState& m_view;
};

} // namespace Console
