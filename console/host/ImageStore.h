#pragma once

#include "platform/handles.h"

#include <commctrl.h>

namespace Console
{

struct ImageListTraits
{
    using Handle = HIMAGELIST;
    static Handle none() noexcept { return nullptr; }
    static void close(Handle handle) noexcept { ImageList_Destroy(handle); }
};
using ImageListHandle = platform::Owner<ImageListTraits>;

// Small (16 by 16) and large (32 by 32) images side by side, the same indices in both. Begins with the console's own
// closed and open folder, for what has no image of its own.
class ImageStore
{
  public:
    static constexpr int folder = 0;
    static constexpr int openFolder = 1;

    // Throws std::bad_alloc when the lists cannot be made.
    ImageStore();

    HIMAGELIST small() const { return m_small.get(); }
    HIMAGELIST large() const { return m_large.get(); }

    // Back to the two folders.
    void clear();

    // A new pair of places holding the icon (in both sizes) or, for null, a blank. -1 when there is no memory.
    int add(HICON icon);
    // Puts an icon into one or both of the pair.
    bool replace(int index, HICON icon, bool small, bool large);
    // Both strips' images, which have the same number. Bitmaps stay the caller's. The first new index; -1 when they
    // cannot be taken.
    int addStrips(HBITMAP small, HBITMAP large, COLORREF mask);

  private:
    void addFolders();

    ImageListHandle m_small;
    ImageListHandle m_large;
};

} // namespace Console
