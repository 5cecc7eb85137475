#pragma once

#include <windows.h>

#include <commctrl.h>

namespace Console
{

// A snap-in's images, 16 or 32 pixels wide, in the size that the screen wants.
class ScaledImages
{
  public:
    ScaledImages() = default;
    ScaledImages(const ScaledImages&) = delete;
    ScaledImages& operator=(const ScaledImages&) = delete;
    ~ScaledImages();

    // A list with the source's images, size pixels wide and high. It is the source itself when that has the size; else
    // a copy, which stays valid until the next call. Call it again when
    // images of the source were replaced.
    HIMAGELIST make(HIMAGELIST source, int size);

    // Takes over images that were added to the source since make(). Cheap when there are none.
    void follow(HIMAGELIST source);

  private:
    HIMAGELIST m_copy = nullptr;
};

} // namespace Console
