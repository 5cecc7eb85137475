#include "ColumnDataPart.h"

#include "ColumnStore.h"
#include "Instance.h"

#include <new>

namespace Console
{

namespace
{

std::vector<BYTE> bytesOf(const SColumnSetID& set)
{
    return {set.id, set.id + set.cBytes};
}

// A header and the entries behind it in one piece, as the reader frees only one (with CoTaskMemFree).
template <class Header, class Entry>
Header* allocate(std::size_t count)
{
    void* const memory = CoTaskMemAlloc(sizeof(Header) + count * sizeof(Entry));
    return memory == nullptr ? nullptr : new (memory) Header{};
}

} // namespace

HRESULT ColumnDataPart::SetColumnConfigData(SColumnSetID* set, MMC_COLUMN_SET_DATA* data)
{
    return m_whole.answer(L"IColumnData::SetColumnConfigData", noArguments,
                          [&]
                          {
                              if (set == nullptr || data == nullptr || set->cBytes == 0 ||
                                  (data->nNumCols > 0 && data->pColData == nullptr))
                              {
                                  return E_INVALIDARG;
                              }
                              ColumnStore::Settings& kept =
                                  m_whole.owner().host->columns->at(m_whole.instance().clsid(), bytesOf(*set));
                              kept.widths.assign(static_cast<std::size_t>(std::max(data->nNumCols, 0)), 0);
                              kept.hidden.assign(kept.widths.size(), false);
                              for (int place = 0; place < data->nNumCols; ++place)
                              {
                                  const MMC_COLUMN_DATA& column = data->pColData[place];
                                  if (column.nColIndex >= 0 && column.nColIndex < data->nNumCols)
                                  {
                                      kept.widths[static_cast<std::size_t>(column.nColIndex)] = column.nWidth;
                                      kept.hidden[static_cast<std::size_t>(column.nColIndex)] =
                                          (column.dwFlags & HDI_HIDDEN) != 0;
                                  }
                              }
                              return S_OK;
                          });
}

HRESULT ColumnDataPart::GetColumnConfigData(SColumnSetID* set, MMC_COLUMN_SET_DATA** data)
{
    return m_whole.answer(L"IColumnData::GetColumnConfigData", noArguments,
                          [&]
                          {
                              if (set == nullptr || data == nullptr)
                              {
                                  return E_INVALIDARG;
                              }
                              *data = nullptr;
                              const ColumnStore::Settings* const kept =
                                  m_whole.owner().host->columns->find(m_whole.instance().clsid(), bytesOf(*set));
                              if (kept == nullptr || kept->widths.empty())
                              {
                                  return S_FALSE;
                              }
                              auto* const made = allocate<MMC_COLUMN_SET_DATA, MMC_COLUMN_DATA>(kept->widths.size());
                              if (made == nullptr)
                              {
                                  return E_OUTOFMEMORY;
                              }
                              made->cbSize = sizeof *made;
                              made->nNumCols = static_cast<int>(kept->widths.size());
                              made->pColData = reinterpret_cast<MMC_COLUMN_DATA*>(made + 1);
                              for (std::size_t column = 0; column < kept->widths.size(); ++column)
                              {
                                  made->pColData[column] = {static_cast<int>(column),
                                                            kept->hidden[column] ? static_cast<DWORD>(HDI_HIDDEN) : 0,
                                                            kept->widths[column], 0};
                              }
                              *data = made;
                              return S_OK;
                          });
}

HRESULT ColumnDataPart::SetColumnSortData(SColumnSetID* set, MMC_SORT_SET_DATA* data)
{
    return m_whole.answer(L"IColumnData::SetColumnSortData", noArguments,
                          [&]
                          {
                              if (set == nullptr || data == nullptr || set->cBytes == 0 ||
                                  (data->nNumItems > 0 && data->pSortData == nullptr))
                              {
                                  return E_INVALIDARG;
                              }
                              ColumnStore::Settings& kept =
                                  m_whole.owner().host->columns->at(m_whole.instance().clsid(), bytesOf(*set));
                              kept.sortColumn = data->nNumItems > 0 ? data->pSortData[0].nColIndex : -1;
                              kept.sortDescending =
                                  data->nNumItems > 0 && (data->pSortData[0].dwSortOptions & RSI_DESCENDING) != 0;
                              return S_OK;
                          });
}

HRESULT ColumnDataPart::GetColumnSortData(SColumnSetID* set, MMC_SORT_SET_DATA** data)
{
    return m_whole.answer(
        L"IColumnData::GetColumnSortData", noArguments,
        [&]
        {
            if (set == nullptr || data == nullptr)
            {
                return E_INVALIDARG;
            }
            *data = nullptr;
            const ColumnStore::Settings* const kept =
                m_whole.owner().host->columns->find(m_whole.instance().clsid(), bytesOf(*set));
            if (kept == nullptr || kept->sortColumn < 0)
            {
                return S_FALSE;
            }
            auto* const made = allocate<MMC_SORT_SET_DATA, MMC_SORT_DATA>(1);
            if (made == nullptr)
            {
                return E_OUTOFMEMORY;
            }
            made->cbSize = sizeof *made;
            made->nNumItems = 1;
            made->pSortData = reinterpret_cast<MMC_SORT_DATA*>(made + 1);
            made->pSortData[0] = {kept->sortColumn, kept->sortDescending ? static_cast<DWORD>(RSI_DESCENDING) : 0, 0};
            *data = made;
            return S_OK;
        });
}

} // namespace Console
