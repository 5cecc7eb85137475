#pragma once

#include "ConsoleObject.h"

namespace Console
{

struct ResultPane;

// IHeaderCtrl2: the columns of the view that is being filled. All column numbers are logical ones.
class HeaderPart final : public PartOf<IHeaderCtrl2>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE InsertColumn(int column, LPCWSTR title, int format, int width) override;
    HRESULT STDMETHODCALLTYPE DeleteColumn(int column) override;
    HRESULT STDMETHODCALLTYPE SetColumnText(int column, LPCWSTR title) override;
    HRESULT STDMETHODCALLTYPE GetColumnText(int column, LPOLESTR* title) override;
    HRESULT STDMETHODCALLTYPE SetColumnWidth(int column, int width) override;
    HRESULT STDMETHODCALLTYPE GetColumnWidth(int column, int* width) override;
    HRESULT STDMETHODCALLTYPE SetChangeTimeOut(unsigned __LONG32 timeout) override;
    HRESULT STDMETHODCALLTYPE SetColumnFilter(UINT column, DWORD type, MMC_FILTERDATA* filter) override;
    HRESULT STDMETHODCALLTYPE GetColumnFilter(UINT column, LPDWORD type, MMC_FILTERDATA* filter) override;

  private:
    // The pane that may be filled now; null when the snap-in shows nothing.
    ResultPane* pane() const;
    ResultPane* paneWith(int column) const;
    void changed() const;
    HRESULT insert(int column, LPCWSTR title, int format, int width);
};

} // namespace Console
