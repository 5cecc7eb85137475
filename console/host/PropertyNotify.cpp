#include "PropertyNotify.h"

#include "platform/mmc.h"

#include <atomic>

namespace
{

std::atomic<HWND> theWindow = nullptr;

HRESULT post(UINT message, LONG_PTR handle, LPARAM value)
{
    const HWND window = theWindow;
    if (handle == 0 || window == nullptr)
    {
        return E_INVALIDARG;
    }
    return PostMessageW(window, message, static_cast<WPARAM>(handle), value) != FALSE ? S_OK : E_FAIL;
}

} // namespace

namespace Console
{

void setPropertyNotifyWindow(HWND window)
{
    theWindow = window;
}

} // namespace Console

extern "C" __attribute__((dllexport)) HRESULT STDAPICALLTYPE MMCPropertyChangeNotify(LONG_PTR handle, LPARAM value)
{
    return post(Console::propertyChangedMessage, handle, value);
}

extern "C" __attribute__((dllexport)) HRESULT STDAPICALLTYPE MMCFreeNotifyHandle(LONG_PTR handle)
{
    return post(Console::propertyHandleFreedMessage, handle, 0);
}
