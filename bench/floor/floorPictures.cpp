#include "floor/floorPictures.h"

#include "platform/handles.h"
#include "tmgmt/resources/ids.h"

#include <commctrl.h>

namespace Bench
{

HRESULT addPictures(IImageList& images)
{
    const HMODULE plugIn = GetModuleHandleW(L"TMgmt.dll");
    const platform::Bitmap small(LoadBitmapW(plugIn, MAKEINTRESOURCEW(IDB_NODES_SMALL)));
    const platform::Bitmap large(LoadBitmapW(plugIn, MAKEINTRESOURCEW(IDB_NODES_LARGE)));
    if (!small || !large)
    {
        return E_FAIL;
    }
    return images.ImageListSetStrip(reinterpret_cast<LONG_PTR*>(small.get()), reinterpret_cast<LONG_PTR*>(large.get()),
                                    0, RGB(0, 128, 128));
}

} // namespace Bench
