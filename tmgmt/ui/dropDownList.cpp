#include "tmgmt/ui/dropDownList.h"

namespace TMgmt
{

void sizeOpenList(HWND list) noexcept
{
    // A closed drop-down list has the height of its field alone; the height that it is given is that of the open one.
    RECT closed{};
    GetWindowRect(list, &closed);
    SetWindowPos(list, nullptr, 0, 0, closed.right - closed.left, 5 * (closed.bottom - closed.top),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace TMgmt
