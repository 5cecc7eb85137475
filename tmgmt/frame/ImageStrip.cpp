#include "tmgmt/frame/ImageStrip.h"

#include "platform/handles.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

HRESULT loadImageStrip(IImageList& images)
{
    const platform::Bitmap smallImages(LoadBitmapW(moduleInstance(), MAKEINTRESOURCEW(IDB_NODES_SMALL)));
    const platform::Bitmap largeImages(LoadBitmapW(moduleInstance(), MAKEINTRESOURCEW(IDB_NODES_LARGE)));
    if (!smallImages || !largeImages)
    {
        return E_FAIL;
    }
    // The parameters are the handles themselves in the shape of pointers, not their addresses. The console copies.
    return images.ImageListSetStrip(reinterpret_cast<LONG_PTR*>(smallImages.get()),
                                    reinterpret_cast<LONG_PTR*>(largeImages.get()), 0, maskColour);
}

} // namespace TMgmt
