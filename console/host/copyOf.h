#pragma once

#include <platform/handles.h>

namespace Console
{

// A bitmap of our own with the same picture; none for none. The snap-in keeps its own.
inline platform::Bitmap copyOf(HBITMAP bitmap)
{
    return platform::Bitmap(bitmap ? static_cast<HBITMAP>(CopyImage(bitmap, IMAGE_BITMAP, 0, 0, 0)) : nullptr);
}

} // namespace Console
