#include "ImageMap.h"

#include <cstdlib>

namespace Console
{

namespace
{

// How many images of that size the strip holds; 0 when it is no bitmap or of another height.
int imagesIn(HBITMAP strip, int size)
{
    BITMAP bitmap{};
    if (GetObjectW(strip, sizeof bitmap, &bitmap) == 0 || std::abs(bitmap.bmHeight) != size ||
        bitmap.bmWidth % size != 0)
    {
        return 0;
    }
    return bitmap.bmWidth / size;
}

} // namespace

int ImageMap::find(int number) const
{
    const auto found = m_places.find(number);
    return found == m_places.end() ? -1 : found->second;
}

HRESULT ImageMap::setIcon(HICON icon, int number, bool small, bool large)
{
    const int place = find(number);
    if (icon == nullptr)
    {
        return E_INVALIDARG;
    }
    if (place >= 0)
    {
        return m_store.replace(place, icon, small, large) ? S_OK : E_INVALIDARG;
    }
    if (!small || !large)
    {
        return E_INVALIDARG; // one size only goes to a number that is there already
    }
    const int added = m_store.add(icon);
    if (added < 0)
    {
        return E_INVALIDARG;
    }
    m_places[number] = added;
    return S_OK;
}

HRESULT ImageMap::setStrips(HBITMAP small, HBITMAP large, int firstNumber, COLORREF mask)
{
    const int count = imagesIn(small, 16);
    if (count == 0 || imagesIn(large, 32) != count)
    {
        return E_INVALIDARG;
    }
    const int first = m_store.addStrips(small, large, mask);
    if (first < 0)
    {
        return E_FAIL;
    }
    for (int image = 0; image < count; ++image)
    {
        m_places[firstNumber + image] = first + image;
    }
    return S_OK;
}

HRESULT ImageListFace::ImageListSetIcon(LONG_PTR* icon, __LONG32 location)
{
    return answer(
        L"IImageList::ImageListSetIcon", [&] { return listOf(L"icon", icon, L"nLoc", location); },
        [&]
        {
            // ILSI_LARGE_ICON and ILSI_SMALL_ICON mark the size that is to stay as it is.
            const bool small = (location & ILSIF_LEAVE_SMALL_ICON) == 0;
            const bool large = (location & ILSIF_LEAVE_LARGE_ICON) == 0;
            return m_map.setIcon(reinterpret_cast<HICON>(icon), location & ~ILSIF_LEAVE_MASK, small, large);
        });
}

HRESULT ImageListFace::ImageListSetStrip(LONG_PTR* small, LONG_PTR* large, __LONG32 start, COLORREF mask)
{
    return answer(
        L"IImageList::ImageListSetStrip",
        [&] { return listOf(L"small", small, L"large", large, L"nStartLoc", start, L"cMask", mask); },
        [&]
        { return m_map.setStrips(reinterpret_cast<HBITMAP>(small), reinterpret_cast<HBITMAP>(large), start, mask); });
}

} // namespace Console
