#pragma once

#include <windows.h>

namespace Console
{

// The handles by which property pages, on their own threads, talk to the console (MMCPropertyChangeNotify and
// MMCFreeNotifyHandle, which the program exports). They are numbers; what they mean only the host's thread knows.

// Messages to the window set below. wParam: the handle. For the first, lParam: the page's value.
constexpr UINT propertyChangedMessage = WM_APP + 1;
constexpr UINT propertyHandleFreedMessage = WM_APP + 2;

// Where the messages go; null when there is no host.
void setPropertyNotifyWindow(HWND window);

} // namespace Console
