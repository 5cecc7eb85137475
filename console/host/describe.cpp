#include "describe.h"

#include "console/host/Trace.h"

#include <array>

namespace Console
{

namespace
{

std::wstring hexadecimal(unsigned long long value)
{
    std::wstring digits;
    do
    {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[value & 0xF]);
        value >>= 4;
    } while (value != 0);
    return L"0x" + digits;
}

struct Name
{
    unsigned long value;
    const wchar_t* text;
};

template <std::size_t count>
std::wstring find(const std::array<Name, count>& names, unsigned long value)
{
    for (const Name& name : names)
    {
        if (name.value == value)
        {
            return name.text;
        }
    }
    return hexadecimal(value);
}

constexpr auto notifications = std::to_array<Name>({
    {MMCN_ACTIVATE, L"MMCN_ACTIVATE"},
    {MMCN_ADD_IMAGES, L"MMCN_ADD_IMAGES"},
    {MMCN_BTN_CLICK, L"MMCN_BTN_CLICK"},
    {MMCN_CLICK, L"MMCN_CLICK"},
    {MMCN_COLUMN_CLICK, L"MMCN_COLUMN_CLICK"},
    {MMCN_CONTEXTMENU, L"MMCN_CONTEXTMENU"},
    {MMCN_CUTORMOVE, L"MMCN_CUTORMOVE"},
    {MMCN_DBLCLICK, L"MMCN_DBLCLICK"},
    {MMCN_DELETE, L"MMCN_DELETE"},
    {MMCN_DESELECT_ALL, L"MMCN_DESELECT_ALL"},
    {MMCN_EXPAND, L"MMCN_EXPAND"},
    {MMCN_HELP, L"MMCN_HELP"},
    {MMCN_MENU_BTNCLICK, L"MMCN_MENU_BTNCLICK"},
    {MMCN_MINIMIZED, L"MMCN_MINIMIZED"},
    {MMCN_PASTE, L"MMCN_PASTE"},
    {MMCN_PROPERTY_CHANGE, L"MMCN_PROPERTY_CHANGE"},
    {MMCN_QUERY_PASTE, L"MMCN_QUERY_PASTE"},
    {MMCN_REFRESH, L"MMCN_REFRESH"},
    {MMCN_REMOVE_CHILDREN, L"MMCN_REMOVE_CHILDREN"},
    {MMCN_RENAME, L"MMCN_RENAME"},
    {MMCN_SELECT, L"MMCN_SELECT"},
    {MMCN_SHOW, L"MMCN_SHOW"},
    {MMCN_VIEW_CHANGE, L"MMCN_VIEW_CHANGE"},
    {MMCN_SNAPINHELP, L"MMCN_SNAPINHELP"},
    {MMCN_CONTEXTHELP, L"MMCN_CONTEXTHELP"},
    {MMCN_INITOCX, L"MMCN_INITOCX"},
    {MMCN_FILTER_CHANGE, L"MMCN_FILTER_CHANGE"},
    {MMCN_FILTERBTN_CLICK, L"MMCN_FILTERBTN_CLICK"},
    {MMCN_RESTORE_VIEW, L"MMCN_RESTORE_VIEW"},
    {MMCN_PRINT, L"MMCN_PRINT"},
    {MMCN_PRELOAD, L"MMCN_PRELOAD"},
    {MMCN_LISTPAD, L"MMCN_LISTPAD"},
    {MMCN_EXPANDSYNC, L"MMCN_EXPANDSYNC"},
    {MMCN_COLUMNS_CHANGED, L"MMCN_COLUMNS_CHANGED"},
    {MMCN_CANPASTE_OUTOFPROC, L"MMCN_CANPASTE_OUTOFPROC"},
});

constexpr auto results = std::to_array<Name>({
    {static_cast<unsigned long>(S_OK), L"S_OK"},
    {static_cast<unsigned long>(S_FALSE), L"S_FALSE"},
    {static_cast<unsigned long>(E_NOTIMPL), L"E_NOTIMPL"},
    {static_cast<unsigned long>(E_NOINTERFACE), L"E_NOINTERFACE"},
    {static_cast<unsigned long>(E_POINTER), L"E_POINTER"},
    {static_cast<unsigned long>(E_FAIL), L"E_FAIL"},
    {static_cast<unsigned long>(E_UNEXPECTED), L"E_UNEXPECTED"},
    {static_cast<unsigned long>(E_INVALIDARG), L"E_INVALIDARG"},
    {static_cast<unsigned long>(E_OUTOFMEMORY), L"E_OUTOFMEMORY"},
    {static_cast<unsigned long>(E_ACCESSDENIED), L"E_ACCESSDENIED"},
    {static_cast<unsigned long>(DV_E_FORMATETC), L"DV_E_FORMATETC"},
    {static_cast<unsigned long>(DV_E_CLIPFORMAT), L"DV_E_CLIPFORMAT"},
    {static_cast<unsigned long>(DV_E_TYMED), L"DV_E_TYMED"},
    {static_cast<unsigned long>(RPC_E_DISCONNECTED), L"RPC_E_DISCONNECTED"},
    {static_cast<unsigned long>(RPC_E_WRONG_THREAD), L"RPC_E_WRONG_THREAD"},
    {static_cast<unsigned long>(REGDB_E_CLASSNOTREG), L"REGDB_E_CLASSNOTREG"},
});

} // namespace

std::wstring notificationName(unsigned event)
{
    return find(notifications, event);
}

std::wstring resultName(HRESULT result)
{
    return find(results, static_cast<unsigned long>(result));
}

std::wstring describe(long long value)
{
    return value > 0xFFFF || value < -0xFFFF ? describe(static_cast<unsigned long long>(value))
                                             : std::to_wstring(value);
}

std::wstring describe(unsigned long long value)
{
    return value > 0xFFFF ? hexadecimal(value) : std::to_wstring(value);
}

std::wstring describe(const void* pointer)
{
    return hexadecimal(reinterpret_cast<ULONG_PTR>(pointer));
}

std::wstring describe(const wchar_t* text)
{
    if (text == nullptr)
    {
        return L"(null)";
    }
    return text == platform::askForText() ? L"(ask)" : L"\"" + std::wstring(text) + L"\"";
}

std::wstring describe(const GUID& id)
{
    std::array<wchar_t, 39> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring describe(MMC_NOTIFY_TYPE event)
{
    return notificationName(static_cast<unsigned>(event));
}

} // namespace Console
