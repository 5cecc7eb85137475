#include "UnseenDialogs.h"

#include <cstddef>
#include <cstring>
#include <vector>

namespace Hostile
{
namespace
{

// The beginning of a DIALOGEX resource, which no header declares.
struct DialogTemplate
{
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD extendedStyle;
    DWORD style;
};

int CALLBACK hideSheet(HWND, UINT event, LPARAM dialog)
{
    if (event == PSCB_PRECREATE)
    {
        reinterpret_cast<DialogTemplate*>(dialog)->style &= ~static_cast<DWORD>(WS_VISIBLE);
    }
    return 0;
}

} // namespace

INT_PTR showUnseen(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure, LPARAM parameter)
{
    const HRSRC resource = FindResourceW(module, name, RT_DIALOG);
    const auto* const begin = static_cast<const std::byte*>(LockResource(LoadResource(module, resource)));
    std::vector<std::byte> copy(begin, begin + SizeofResource(module, resource));
    DialogTemplate head{};
    std::memcpy(&head, copy.data(), sizeof head);
    head.style &= ~static_cast<DWORD>(WS_VISIBLE);
    std::memcpy(copy.data(), &head, sizeof head);
    return DialogBoxIndirectParamW(module, reinterpret_cast<LPCDLGTEMPLATEW>(copy.data()), owner, procedure, parameter);
}

INT_PTR showUnseen(const PROPSHEETHEADERW& sheet, const std::function<INT_PTR(LPCPROPSHEETHEADERW)>& show)
{
    PROPSHEETHEADERW unseen = sheet;
    unseen.dwFlags |= PSH_USECALLBACK;
    unseen.pfnCallback = hideSheet;
    return show(&unseen);
}

} // namespace Hostile
