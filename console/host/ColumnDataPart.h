#pragma once

#include "ConsoleObject.h"

namespace Console
{

// IColumnData over the host's column settings.
class ColumnDataPart final : public PartOf<IColumnData>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE SetColumnConfigData(SColumnSetID* set, MMC_COLUMN_SET_DATA* data) override;
    HRESULT STDMETHODCALLTYPE GetColumnConfigData(SColumnSetID* set, MMC_COLUMN_SET_DATA** data) override;
    HRESULT STDMETHODCALLTYPE SetColumnSortData(SColumnSetID* set, MMC_SORT_SET_DATA* data) override;
    HRESULT STDMETHODCALLTYPE GetColumnSortData(SColumnSetID* set, MMC_SORT_SET_DATA** data) override;
};

} // namespace Console
