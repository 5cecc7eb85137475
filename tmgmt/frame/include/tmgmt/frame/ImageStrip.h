#pragma once

#include "platform/mmc.h"

namespace TMgmt
{

// Where a picture of this module has this colour, nothing is drawn.
inline constexpr COLORREF maskColour = RGB(0, 128, 128);

// Gives a list of the console's the pictures of all nodes, from index 0 on. E_FAIL when the module does not have them.
HRESULT loadImageStrip(IImageList& images);

} // namespace TMgmt
