#pragma once

#include "frame/doubles/HeaderDouble.h"
#include "frame/doubles/ImageListDouble.h"
#include "frame/doubles/NameSpaceDouble.h"
#include "frame/doubles/ResultDataDouble.h"
#include "frame/doubles/VerbDouble.h"

#include <functional>
#include <vector>

namespace Acceptance
{

// The console's object for one component data or one component, with everything that hangs on it. Answers are set
// before a call, what the call did is read afterwards.
class ConsoleDouble final : public ComDouble<IConsole>
{
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;

    HRESULT STDMETHODCALLTYPE QueryScopeImageList(IImageList** images) override;
    HRESULT STDMETHODCALLTYPE UpdateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint) override;
    HRESULT STDMETHODCALLTYPE QueryConsoleVerb(IConsoleVerb** verbs) override;
    HRESULT STDMETHODCALLTYPE SelectScopeItem(HSCOPEITEM item) override;
    HRESULT STDMETHODCALLTYPE GetMainWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE SetHeader(IHeaderCtrl*) override { return uncalled("SetHeader"); }
    HRESULT STDMETHODCALLTYPE SetToolbar(IToolbar*) override { return uncalled("SetToolbar"); }
    HRESULT STDMETHODCALLTYPE QueryResultView(IUnknown**) override { return uncalled("QueryResultView"); }
    HRESULT STDMETHODCALLTYPE QueryResultImageList(IImageList**) override { return uncalled("QueryResultImageList"); }
    HRESULT STDMETHODCALLTYPE MessageBox(LPCWSTR, LPCWSTR, UINT, int*) override { return uncalled("MessageBox"); }
    HRESULT STDMETHODCALLTYPE NewWindow(HSCOPEITEM, unsigned long) override { return uncalled("NewWindow"); }

    ImageListDouble images;
    NameSpaceDouble nameSpace;
    ResultDataDouble results;
    HeaderDouble header;
    VerbDouble verbs;

    struct Update
    {
        GUID nodeType;
        LPARAM data;
        LONG_PTR hint;

        bool operator==(const Update&) const = default;
    };
    std::vector<Update> updates;
    std::function<void(IDataObject*)> onUpdate;
    std::vector<HSCOPEITEM> selections;
    std::function<void(HSCOPEITEM)> onSelect;

    // What a query for IConsole, for the scope image list, for the verbs, and a selection are answered with.
    HRESULT consoleAnswer = S_OK;
    HRESULT imageListAnswer = S_OK;
    HRESULT verbAnswer = S_OK;
    HRESULT selectAnswer = S_OK;
};

} // namespace Acceptance
