#pragma once

#include "Whim.h"

#include "platform/mmc.h"

#include <functional>
#include <map>
#include <vector>

namespace Hostile
{

// The console's object for one component data or one component: one class for all its interfaces, as consoles have it.
// What succeeds has its effect, any call may fail. It outlives the plug-in's use of it.
class HostileConsole final : public IConsole2,
                             public IConsoleNameSpace2,
                             public IHeaderCtrl,
                             public IResultData,
                             public IConsoleVerb,
                             public IImageList
{
  public:
    HostileConsole(Whim& whim, HWND frame) : m_whim(whim), m_frame(frame) {}
    HostileConsole(const HostileConsole&) = delete;
    HostileConsole& operator=(const HostileConsole&) = delete;
    // A reference that is left fails the test.
    ~HostileConsole();

    IUnknown* unknown() { return static_cast<IConsole2*>(this); }
    long references() const { return m_references; }

    // A node was put into the tree or into the list.
    std::function<void(MMC_COOKIE)> onNode;
    // The plug-in asks for these; what comes of it is the console's business.
    std::function<void(IDataObject*, LPARAM, LONG_PTR)> onUpdateAllViews;
    std::function<void(HSCOPEITEM)> onSelectScopeItem;

    struct Row
    {
        HRESULTITEM id;
        MMC_COOKIE cookie;
    };
    struct ScopeItem
    {
        MMC_COOKIE cookie;
        HSCOPEITEM parent;
    };

    const std::vector<Row>& rows() const { return m_rows; }
    const std::map<HSCOPEITEM, ScopeItem>& scopeItems() const { return m_items; }
    // As it is before a node is shown.
    void clearPane();
    // The rows that GetNextItem finds selected.
    void selectEveryRow(bool selected) { m_selected = selected; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++m_references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--m_references); }

    // IConsole2
    HRESULT STDMETHODCALLTYPE SetHeader(IHeaderCtrl*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE SetToolbar(IToolbar*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE QueryResultView(IUnknown** view) override;
    HRESULT STDMETHODCALLTYPE QueryScopeImageList(IImageList** images) override { return part(images); }
    HRESULT STDMETHODCALLTYPE QueryResultImageList(IImageList** images) override { return part(images); }
    HRESULT STDMETHODCALLTYPE UpdateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint) override;
    HRESULT STDMETHODCALLTYPE MessageBox(LPCWSTR text, LPCWSTR title, UINT style, int* answer) override;
    HRESULT STDMETHODCALLTYPE QueryConsoleVerb(IConsoleVerb** verbs) override { return part(verbs); }
    HRESULT STDMETHODCALLTYPE SelectScopeItem(HSCOPEITEM item) override;
    HRESULT STDMETHODCALLTYPE GetMainWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE NewWindow(HSCOPEITEM, unsigned long) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE Expand(HSCOPEITEM, BOOL) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE IsTaskpadViewPreferred() override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPOLESTR) override { return m_whim.answer(); }

    // IConsoleNameSpace2
    HRESULT STDMETHODCALLTYPE InsertItem(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE DeleteItem(HSCOPEITEM item, long itself) override;
    HRESULT STDMETHODCALLTYPE SetItem(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE GetItem(SCOPEDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE GetChildItem(HSCOPEITEM item, HSCOPEITEM* child, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE GetNextItem(HSCOPEITEM item, HSCOPEITEM* next, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE GetParentItem(HSCOPEITEM item, HSCOPEITEM* parent, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE Expand(HSCOPEITEM) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE AddExtension(HSCOPEITEM, CLSID*) override { return m_whim.answer(); }

    // IHeaderCtrl
    HRESULT STDMETHODCALLTYPE InsertColumn(int, LPCWSTR, int, int) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE DeleteColumn(int) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE SetColumnText(int, LPCWSTR) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetColumnText(int, LPOLESTR* text) override;
    HRESULT STDMETHODCALLTYPE SetColumnWidth(int, int) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetColumnWidth(int, int* width) override;

    // IResultData
    HRESULT STDMETHODCALLTYPE InsertItem(RESULTDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE DeleteItem(HRESULTITEM item, int) override;
    HRESULT STDMETHODCALLTYPE FindItemByLParam(LPARAM cookie, HRESULTITEM* item) override;
    HRESULT STDMETHODCALLTYPE DeleteAllRsltItems() override;
    HRESULT STDMETHODCALLTYPE SetItem(RESULTDATAITEM*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetItem(RESULTDATAITEM*) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetNextItem(RESULTDATAITEM* item) override;
    HRESULT STDMETHODCALLTYPE ModifyItemState(int, HRESULTITEM, UINT, UINT) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE ModifyViewStyle(MMC_RESULT_VIEW_STYLE, MMC_RESULT_VIEW_STYLE) override
    {
        return m_whim.answer();
    }
    HRESULT STDMETHODCALLTYPE SetViewMode(long) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetViewMode(long* mode) override;
    HRESULT STDMETHODCALLTYPE UpdateItem(HRESULTITEM) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE Sort(int, DWORD, LPARAM) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE SetDescBarText(LPOLESTR) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE SetItemCount(int, DWORD) override { return m_whim.answer(); }

    // IConsoleVerb
    HRESULT STDMETHODCALLTYPE GetVerbState(MMC_CONSOLE_VERB, MMC_BUTTON_STATE, BOOL* state) override;
    HRESULT STDMETHODCALLTYPE SetVerbState(MMC_CONSOLE_VERB, MMC_BUTTON_STATE, BOOL) override
    {
        return m_whim.answer();
    }
    HRESULT STDMETHODCALLTYPE SetDefaultVerb(MMC_CONSOLE_VERB) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE GetDefaultVerb(MMC_CONSOLE_VERB* verb) override;

    // IImageList
    HRESULT STDMETHODCALLTYPE ImageListSetIcon(LONG_PTR*, long) override { return m_whim.answer(); }
    HRESULT STDMETHODCALLTYPE ImageListSetStrip(LONG_PTR*, LONG_PTR*, long, COLORREF) override
    {
        return m_whim.answer();
    }

  private:
    // This object as another of its interfaces, or a failure.
    template <class Interface>
    HRESULT part(Interface** out)
    {
        *out = nullptr;
        const HRESULT answer = m_whim.answer();
        if (SUCCEEDED(answer))
        {
            *out = this;
            AddRef();
        }
        return answer;
    }
    HRESULT found(std::map<HSCOPEITEM, ScopeItem>::const_iterator item, HSCOPEITEM* handle, MMC_COOKIE* cookie);

    Whim& m_whim;
    HWND m_frame;
    long m_references = 0;
    std::map<HSCOPEITEM, ScopeItem> m_items;
    std::vector<Row> m_rows;
    // Above 4 GiB, so that a handle that is cut to 32 bits is noticed.
    LONG_PTR m_lastHandle = 0x7200000000;
    bool m_selected = false;
};

} // namespace Hostile
