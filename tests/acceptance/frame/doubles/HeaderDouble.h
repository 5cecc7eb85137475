#pragma once

#include "frame/doubles/ComDouble.h"

#include <string>
#include <vector>

namespace Acceptance
{

// Remembers the columns that it is given.
class HeaderDouble final : public ComDouble<IHeaderCtrl>
{
  public:
    struct Column
    {
        int position;
        std::wstring title;
        int format;
        int width;

        bool operator==(const Column&) const = default;
    };

    HRESULT STDMETHODCALLTYPE InsertColumn(int position, LPCWSTR title, int format, int width) override
    {
        columns.push_back({position, title, format, width});
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DeleteColumn(int) override { return uncalled("DeleteColumn"); }
    HRESULT STDMETHODCALLTYPE SetColumnText(int, LPCWSTR) override { return uncalled("SetColumnText"); }
    HRESULT STDMETHODCALLTYPE GetColumnText(int, LPOLESTR*) override { return uncalled("GetColumnText"); }
    HRESULT STDMETHODCALLTYPE SetColumnWidth(int, int) override { return uncalled("SetColumnWidth"); }
    HRESULT STDMETHODCALLTYPE GetColumnWidth(int, int*) override { return uncalled("GetColumnWidth"); }

    std::vector<Column> columns;
};

} // namespace Acceptance
