#pragma once

#include "frame/doubles/ComDouble.h"

#include <vector>

namespace Acceptance
{

// Remembers the image strips that it is given, as the bitmaps are at the time of the call.
class ImageListDouble final : public ComDouble<IImageList>
{
  public:
    struct Strip
    {
        BITMAP smallImages{};
        BITMAP largeImages{};
        long start = -1;
        COLORREF mask = 0;
    };

    HRESULT STDMETHODCALLTYPE ImageListSetIcon(LONG_PTR*, long) override { return uncalled("ImageListSetIcon"); }
    HRESULT STDMETHODCALLTYPE ImageListSetStrip(LONG_PTR* smallImages, LONG_PTR* largeImages, long start,
                                                COLORREF mask) override
    {
        Strip strip{.start = start, .mask = mask};
        GetObjectW(reinterpret_cast<HBITMAP>(smallImages), sizeof strip.smallImages, &strip.smallImages);
        GetObjectW(reinterpret_cast<HBITMAP>(largeImages), sizeof strip.largeImages, &strip.largeImages);
        strips.push_back(strip);
        return answer;
    }

    std::vector<Strip> strips;
    HRESULT answer = S_OK;
};

} // namespace Acceptance
