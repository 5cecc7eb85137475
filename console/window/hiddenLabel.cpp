#include "hiddenLabel.h"

#include <commctrl.h>

namespace Console
{

void createHiddenLabel(HWND parent, const wchar_t* text)
{
    CreateWindowExW(0, WC_STATICW, text, WS_CHILD, 0, 0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

} // namespace Console
