#include "tmgmt/certificates/reportFailure.h"

#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

void reportFailure(const Core::Exception& exception, const wchar_t* caption) noexcept
{
    // There is no owner that Windows would disable: MB_TASKMODAL does it with all windows of the thread. Else Finish
    // could be pressed again behind the box. It does not promise to give the focus back, as an owner would.
    const HWND active = GetActiveWindow();
    showMessage(nullptr, exception.getMessage().c_str(), caption, MB_OK | MB_ICONERROR | MB_TASKMODAL);
    SetActiveWindow(active);
}

} // namespace TMgmt
