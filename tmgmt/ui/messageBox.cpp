#include "tmgmt/ui/messageBox.h"

#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

int showMessage(HWND owner, const wchar_t* text, const wchar_t* caption, UINT style) noexcept
{
    const platform::VisualStyles::Scope scope(moduleStyles());
    return MessageBoxW(owner, text, caption, style);
}

} // namespace TMgmt
