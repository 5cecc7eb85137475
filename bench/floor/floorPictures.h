#pragma once

#include "platform/mmc.h"

namespace Bench
{

// Gives the console the plug-in's pictures. E_FAIL while the plug-in is not loaded.
HRESULT addPictures(IImageList& images);

} // namespace Bench
