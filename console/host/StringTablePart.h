#pragma once

#include "ConsoleObject.h"

namespace Console
{

// IStringTable over the instance's strings.
class StringTablePart final : public PartOf<IStringTable>
{
  public:
    using PartOf::PartOf;

    HRESULT STDMETHODCALLTYPE AddString(LPCOLESTR text, MMC_STRING_ID* id) override;
    HRESULT STDMETHODCALLTYPE GetString(MMC_STRING_ID id, ULONG size, LPOLESTR buffer, ULONG* length) override;
    HRESULT STDMETHODCALLTYPE GetStringLength(MMC_STRING_ID id, ULONG* length) override;
    HRESULT STDMETHODCALLTYPE DeleteString(MMC_STRING_ID id) override;
    HRESULT STDMETHODCALLTYPE DeleteAllStrings() override;
    HRESULT STDMETHODCALLTYPE FindString(LPCOLESTR text, MMC_STRING_ID* id) override;
    HRESULT STDMETHODCALLTYPE Enumerate(IEnumString** strings) override;
};

} // namespace Console
