#pragma once

#include "ConsoleObject.h"
#include "PropertySheets.h"

namespace Console
{

// IPropertySheetProvider: a snap-in opens sheets itself. One is put together at a time.
class SheetProviderPart final : public PartOf<IPropertySheetProvider>
{
  public:
    using PartOf::PartOf;
    ~SheetProviderPart() override { discard(); }

    HRESULT STDMETHODCALLTYPE CreatePropertySheet(LPCWSTR title, boolean type, MMC_COOKIE cookie, LPDATAOBJECT object,
                                                  DWORD options) override;
    HRESULT STDMETHODCALLTYPE FindPropertySheet(MMC_COOKIE cookie, LPCOMPONENT component, LPDATAOBJECT object) override;
    HRESULT STDMETHODCALLTYPE AddPrimaryPages(LPUNKNOWN extension, WINBOOL createHandle, HWND notifyWindow,
                                              WINBOOL scopePane) override;
    HRESULT STDMETHODCALLTYPE AddExtensionPages() override;
    HRESULT STDMETHODCALLTYPE Show(LONG_PTR window, int page) override;

  private:
    // Whose object that is; null when it is nobody's.
    Instance* instanceOf(IUnknown* extension) const;
    void discard();

    bool m_begun = false;
    SheetOptions m_options;
    IDataObject* m_object = nullptr;
    Instance* m_instance = nullptr;
    PropertyPages m_pages;
};

} // namespace Console
