#pragma once

#include "ConsoleObject.h"

namespace Console
{

// IConsole3 and what it grew from.
class ConsolePart final : public PartOf<IConsole3>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE SetHeader(LPHEADERCTRL header) override;
    HRESULT STDMETHODCALLTYPE SetToolbar(LPTOOLBAR toolbar) override;
    HRESULT STDMETHODCALLTYPE QueryResultView(LPUNKNOWN* view) override;
    HRESULT STDMETHODCALLTYPE QueryScopeImageList(LPIMAGELIST* images) override;
    HRESULT STDMETHODCALLTYPE QueryResultImageList(LPIMAGELIST* images) override;
    HRESULT STDMETHODCALLTYPE UpdateAllViews(LPDATAOBJECT object, LPARAM data, LONG_PTR hint) override;
    HRESULT STDMETHODCALLTYPE MessageBox(LPCWSTR text, LPCWSTR title, UINT style, int* answer) override;
    HRESULT STDMETHODCALLTYPE QueryConsoleVerb(LPCONSOLEVERB* verb) override;
    HRESULT STDMETHODCALLTYPE SelectScopeItem(HSCOPEITEM item) override;
    HRESULT STDMETHODCALLTYPE GetMainWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE NewWindow(HSCOPEITEM item, unsigned __LONG32 options) override;
    HRESULT STDMETHODCALLTYPE Expand(HSCOPEITEM item, WINBOOL expand) override;
    HRESULT STDMETHODCALLTYPE IsTaskpadViewPreferred() override;
    HRESULT STDMETHODCALLTYPE SetStatusText(LPOLESTR text) override;
    HRESULT STDMETHODCALLTYPE RenameScopeItem(HSCOPEITEM item) override;

  private:
    // The snap-in's own node of that handle; null for anything else.
    ScopeNode* ownNode(HSCOPEITEM item) const;
    bool objectsToSide(const wchar_t* method, bool forComponent) const;
};

} // namespace Console
