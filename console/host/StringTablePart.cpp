#include "StringTablePart.h"

#include "Instance.h"

namespace Console
{

HRESULT StringTablePart::AddString(LPCOLESTR text, MMC_STRING_ID* id)
{
    return m_whole.answer(
        L"IStringTable::AddString", [&] { return listOf(L"text", text); },
        [&]
        {
            if (text == nullptr || id == nullptr)
            {
                return E_POINTER;
            }
            *id = m_whole.instance().strings().add(text);
            return S_OK;
        });
}

HRESULT StringTablePart::GetString(MMC_STRING_ID id, ULONG size, LPOLESTR buffer, ULONG* length)
{
    return m_whole.answer(
        L"IStringTable::GetString", [&] { return listOf(L"id", id); },
        [&]
        {
            const std::wstring* const text = m_whole.instance().strings().find(id);
            if (text == nullptr || buffer == nullptr || size == 0)
            {
                return E_INVALIDARG;
            }
            // What does not fit is cut off.
            const std::size_t copied = text->copy(buffer, size - 1);
            buffer[copied] = L'\0';
            if (length != nullptr)
            {
                *length = static_cast<ULONG>(copied);
            }
            return S_OK;
        });
}

HRESULT StringTablePart::GetStringLength(MMC_STRING_ID id, ULONG* length)
{
    return m_whole.answer(
        L"IStringTable::GetStringLength", [&] { return listOf(L"id", id); },
        [&]
        {
            const std::wstring* const text = m_whole.instance().strings().find(id);
            if (text == nullptr || length == nullptr)
            {
                return E_INVALIDARG;
            }
            *length = static_cast<ULONG>(text->size());
            return S_OK;
        });
}

HRESULT StringTablePart::DeleteString(MMC_STRING_ID id)
{
    return m_whole.answer(
        L"IStringTable::DeleteString", [&] { return listOf(L"id", id); },
        [&] { return m_whole.instance().strings().remove(id) ? S_OK : E_INVALIDARG; });
}

HRESULT StringTablePart::DeleteAllStrings()
{
    return m_whole.answer(L"IStringTable::DeleteAllStrings", noArguments,
                          [&]
                          {
                              m_whole.instance().strings().clear();
                              return S_OK;
                          });
}

HRESULT StringTablePart::FindString(LPCOLESTR text, MMC_STRING_ID* id)
{
    return m_whole.answer(
        L"IStringTable::FindString", [&] { return listOf(L"text", text); },
        [&]
        {
            if (text == nullptr || id == nullptr)
            {
                return E_POINTER;
            }
            *id = m_whole.instance().strings().find(text);
            return *id == 0 ? E_FAIL : S_OK;
        });
}

HRESULT StringTablePart::Enumerate(IEnumString** strings)
{
    return m_whole.answer(L"IStringTable::Enumerate", noArguments,
                          [&]
                          {
                              if (strings != nullptr)
                              {
                                  *strings = nullptr;
                              }
                              return E_NOTIMPL;
                          });
}

} // namespace Console
