#include "ImageStore.h"

#include "copyOf.h"

#include <shellapi.h>

#include <new>

namespace Console
{

namespace
{

platform::Icon stockIcon(SHSTOCKICONID id, UINT size)
{
    SHSTOCKICONINFO info{};
    info.cbSize = sizeof info;
    if (FAILED(SHGetStockIconInfo(id, SHGSI_ICON | size, &info)))
    {
        return {};
    }
    return platform::Icon(info.hIcon);
}

} // namespace

ImageStore::ImageStore()
    : m_small(ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 8, 16)),
      m_large(ImageList_Create(32, 32, ILC_COLOR32 | ILC_MASK, 8, 16))
{
    if (!m_small || !m_large)
    {
        throw std::bad_alloc();
    }
    addFolders();
}

void ImageStore::addFolders()
{
    for (const SHSTOCKICONID id : {SIID_FOLDER, SIID_FOLDEROPEN})
    {
        const platform::Icon small = stockIcon(id, SHGSI_SMALLICON);
        const platform::Icon large = stockIcon(id, SHGSI_LARGEICON);
        const int index = add(small.get());
        replace(index, large.get(), false, true);
    }
}

void ImageStore::clear()
{
    ImageList_SetImageCount(m_small.get(), openFolder + 1);
    ImageList_SetImageCount(m_large.get(), openFolder + 1);
}

int ImageStore::add(HICON icon)
{
    const platform::Icon blank(icon == nullptr ? CopyIcon(LoadIconW(nullptr, IDI_APPLICATION)) : nullptr);
    const HICON shown = icon != nullptr ? icon : blank.get();
    const int small = ImageList_ReplaceIcon(m_small.get(), -1, shown);
    const int large = ImageList_ReplaceIcon(m_large.get(), -1, shown);
    return small == large ? small : -1;
}

bool ImageStore::replace(int index, HICON icon, bool small, bool large)
{
    if (icon == nullptr)
    {
        return false;
    }
    return (!small || ImageList_ReplaceIcon(m_small.get(), index, icon) == index) &&
           (!large || ImageList_ReplaceIcon(m_large.get(), index, icon) == index);
}

int ImageStore::addStrips(HBITMAP small, HBITMAP large, COLORREF mask)
{
    // Adding with a mask colour changes the source bitmap's background to black; the snap-in's stays as it is.
    const platform::Bitmap smallCopy = copyOf(small);
    const platform::Bitmap largeCopy = copyOf(large);
    const int before = ImageList_GetImageCount(m_small.get());
    const int smallFirst = smallCopy ? ImageList_AddMasked(m_small.get(), smallCopy.get(), mask) : -1;
    const int largeFirst = largeCopy ? ImageList_AddMasked(m_large.get(), largeCopy.get(), mask) : -1;
    if (smallFirst < 0 || smallFirst != largeFirst ||
        ImageList_GetImageCount(m_small.get()) != ImageList_GetImageCount(m_large.get()))
    {
        ImageList_SetImageCount(m_small.get(), static_cast<UINT>(before));
        ImageList_SetImageCount(m_large.get(), static_cast<UINT>(before));
        return -1;
    }
    return smallFirst;
}

} // namespace Console
