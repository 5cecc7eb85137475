#pragma once

#include "platform/handles.h"

#include <commctrl.h>

#include <string>

namespace Console
{

// What a snap-in tells about itself, copied. Whatever the snap-in does not give stays empty.
struct AboutInformation
{
    std::wstring description;
    std::wstring provider;
    std::wstring version;
    platform::Icon icon;
    platform::Bitmap smallFolder;     // 16 by 16
    platform::Bitmap smallOpenFolder; // 16 by 16
    platform::Bitmap largeFolder;     // 32 by 32
    COLORREF mask = CLR_NONE;         // the colour that is transparent in the three bitmaps
};

// Creates the about object of that class and reads it. Needs no host; COM must be initialised on this thread.
// On failure (the class cannot be created) everything is empty and problem holds one sentence; problem may be null.
AboutInformation readAboutInformation(const CLSID& about, std::wstring* problem = nullptr);

} // namespace Console
