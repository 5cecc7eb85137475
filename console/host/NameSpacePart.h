#pragma once

#include "ConsoleObject.h"

namespace Console
{

// IConsoleNameSpace2: the snap-in's part of the tree. Handles that are not its own nodes are E_INVALIDARG.
class NameSpacePart final : public PartOf<IConsoleNameSpace2>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE InsertItem(LPSCOPEDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE DeleteItem(HSCOPEITEM item, __LONG32 deleteThis) override;
    HRESULT STDMETHODCALLTYPE SetItem(LPSCOPEDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE GetItem(LPSCOPEDATAITEM item) override;
    HRESULT STDMETHODCALLTYPE GetChildItem(HSCOPEITEM item, HSCOPEITEM* child, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE GetNextItem(HSCOPEITEM item, HSCOPEITEM* next, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE GetParentItem(HSCOPEITEM item, HSCOPEITEM* parent, MMC_COOKIE* cookie) override;
    HRESULT STDMETHODCALLTYPE Expand(HSCOPEITEM item) override;
    HRESULT STDMETHODCALLTYPE AddExtension(HSCOPEITEM item, LPCLSID extension) override;

  private:
    ScopeNode* own(HSCOPEITEM item) const;
    HRESULT insert(SCOPEDATAITEM& item);
    void fill(ScopeNode& node, const SCOPEDATAITEM& item);
    HRESULT neighbour(const wchar_t* method, HSCOPEITEM item, HSCOPEITEM* found, MMC_COOKIE* cookie,
                      ScopeNode* ScopeNode::*which);
};

} // namespace Console
