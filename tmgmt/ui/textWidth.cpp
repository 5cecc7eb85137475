#include "tmgmt/ui/textWidth.h"

namespace TMgmt
{

int textWidth(HWND control, const std::wstring& line) noexcept
{
    const HDC context = GetDC(control);
    const HGDIOBJ former = SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(context, line.c_str(), static_cast<int>(line.size()), &size);
    SelectObject(context, former);
    ReleaseDC(control, context);
    return size.cx;
}

} // namespace TMgmt
