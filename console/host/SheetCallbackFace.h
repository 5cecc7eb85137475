#pragma once

#include "Face.h"
#include "PropertySheets.h"

namespace Console
{

// IPropertySheetCallback: collects the pages that a snap-in makes.
class SheetCallbackFace final : public Face<IPropertySheetCallback>
{
  public:
    SheetCallbackFace(const FaceOwner& owner, PropertyPages& pages)
        : Face(owner, L"IPropertySheetCallback"), m_pages(pages)
    {
    }

    HRESULT STDMETHODCALLTYPE AddPage(HPROPSHEETPAGE page) override
    {
        return answer(
            L"IPropertySheetCallback::AddPage", [&] { return listOf(L"page", page); },
            [&] { return m_pages.add(page) ? S_OK : E_INVALIDARG; });
    }
    HRESULT STDMETHODCALLTYPE RemovePage(HPROPSHEETPAGE page) override
    {
        return answer(
            L"IPropertySheetCallback::RemovePage", [&] { return listOf(L"page", page); },
            [&] { return m_pages.remove(page) ? S_OK : E_INVALIDARG; });
    }

  private:
    PropertyPages& m_pages;
};

} // namespace Console
