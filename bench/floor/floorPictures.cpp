#include "floor/floorPictures.h"

#include "platform/handles.h"

#include <commctrl.h>

namespace Bench
{
namespace
{

constexpr int pictures = 24;

} // namespace

HRESULT addPictures(IImageList& images)
{
    const platform::Bitmap small(CreateBitmap(16 * pictures, 16, 1, 32, nullptr));
    const platform::Bitmap large(CreateBitmap(32 * pictures, 32, 1, 32, nullptr));
    return images.ImageListSetStrip(reinterpret_cast<LONG_PTR*>(small.get()), reinterpret_cast<LONG_PTR*>(large.get()),
                                    0, CLR_NONE);
}

} // namespace Bench
