#pragma once

#include "platform/mmc.h"

namespace Bench
{

// Gives the console as many pictures as the plug-in has, empty ones.
HRESULT addPictures(IImageList& images);

} // namespace Bench
