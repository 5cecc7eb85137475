#include "MenuCallbackFace.h"

namespace Console
{

HRESULT MenuCallbackFace::QueryInterface(REFIID id, void** object)
{
    if (object == nullptr)
    {
        return E_POINTER;
    }
    *object = id == __uuidof(IUnknown) || id == __uuidof(IContextMenuCallback)
                  ? static_cast<void*>(static_cast<IContextMenuCallback*>(this))
              : id == __uuidof(IContextMenuCallback2) ? static_cast<void*>(static_cast<IContextMenuCallback2*>(this))
                                                      : nullptr;
    if (*object == nullptr)
    {
        return E_NOINTERFACE;
    }
    addReference();
    return S_OK;
}

HRESULT MenuCallbackFace::AddItem(CONTEXTMENUITEM* item)
{
    return add(item);
}

HRESULT MenuCallbackFace::AddItem(CONTEXTMENUITEM2* item)
{
    if (item == nullptr)
    {
        return E_POINTER;
    }
    const CONTEXTMENUITEM first{item->strName,           item->strStatusBarText, item->lCommandID,
                                item->lInsertionPointID, item->fFlags,           item->fSpecialFlags};
    return add(&first);
}

HRESULT MenuCallbackFace::add(const CONTEXTMENUITEM* item)
{
    return answer(
        L"IContextMenuCallback::AddItem",
        [&]
        {
            return item == nullptr
                       ? std::wstring(L"null")
                       : listOf(L"name", static_cast<const wchar_t*>(item->strName), L"id", item->lCommandID, L"at",
                                static_cast<unsigned long>(item->lInsertionPointID));
        },
        [&]
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            const HRESULT result = m_model.add(m_caller, m_allowed, *item);
            if (FAILED(result))
            {
                complain(L"A menu item was refused: " +
                         listOf(L"name", static_cast<const wchar_t*>(item->strName), L"id", item->lCommandID, L"at",
                                static_cast<unsigned long>(item->lInsertionPointID)) +
                         L".");
            }
            return result;
        });
}

} // namespace Console
