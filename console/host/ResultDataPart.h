#pragma once

#include "ConsoleObject.h"

namespace Console
{

struct ResultPane;
struct Row;
class ViewState;

// IResultData2: the rows of the view that is being filled.
class ResultDataPart final : public PartOf<IResultData2>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE InsertItem(LPRESULTDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE DeleteItem(HRESULTITEM item, int column) override;
    HRESULT STDMETHODCALLTYPE FindItemByLParam(LPARAM cookie, HRESULTITEM* item) override;
    HRESULT STDMETHODCALLTYPE DeleteAllRsltItems() override;
    HRESULT STDMETHODCALLTYPE SetItem(LPRESULTDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE GetItem(LPRESULTDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE GetNextItem(LPRESULTDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE ModifyItemState(int index, HRESULTITEM item, UINT add, UINT remove) override;
    HRESULT STDMETHODCALLTYPE ModifyViewStyle(MMC_RESULT_VIEW_STYLE add, MMC_RESULT_VIEW_STYLE remove) override;
    HRESULT STDMETHODCALLTYPE SetViewMode(__LONG32 mode) override;
    HRESULT STDMETHODCALLTYPE GetViewMode(__LONG32* mode) override;
    HRESULT STDMETHODCALLTYPE UpdateItem(HRESULTITEM item) override;
    HRESULT STDMETHODCALLTYPE Sort(int column, DWORD options, LPARAM user) override;
    HRESULT STDMETHODCALLTYPE SetDescBarText(LPOLESTR text) override;
    HRESULT STDMETHODCALLTYPE SetItemCount(int count, DWORD options) override;
    HRESULT STDMETHODCALLTYPE RenameResultItem(HRESULTITEM item) override;

  private:
    // Runs a body on the view that shows the snap-in's node; E_UNEXPECTED when none does.
    template <class Arguments, class Body>
    HRESULT onView(const wchar_t* method, Arguments&& arguments, Body&& body);

    HRESULT insert(ViewState& view, RESULTDATAITEM& item);
    HRESULT erase(ViewState& view, HRESULTITEM item);
    HRESULT next(ViewState& view, RESULTDATAITEM& item) const;
    Row* find(ViewState& view, HRESULTITEM item) const;
};

} // namespace Console
