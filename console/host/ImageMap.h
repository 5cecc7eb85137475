#pragma once

#include "Face.h"
#include "ImageStore.h"
#include "platform/mmc.h"

#include <unordered_map>

namespace Console
{

// A snap-in's private image numbers, and where these images are in a store.
class ImageMap
{
  public:
    explicit ImageMap(ImageStore& store) : m_store(store) {}

    // -1 when the snap-in set no image of that number.
    int find(int number) const;
    void clear() { m_places.clear(); }

    HRESULT setIcon(HICON icon, int number, bool small, bool large);
    HRESULT setStrips(HBITMAP small, HBITMAP large, int firstNumber, COLORREF mask);

  private:
    ImageStore& m_store;
    std::unordered_map<int, int> m_places;
};

// IImageList over a map.
class ImageListFace final : public Face<IImageList>
{
  public:
    ImageListFace(const FaceOwner& owner, const wchar_t* name, ImageMap& map) : Face(owner, name), m_map(map) {}

    HRESULT STDMETHODCALLTYPE ImageListSetIcon(LONG_PTR* icon, __LONG32 location) override;
    HRESULT STDMETHODCALLTYPE ImageListSetStrip(LONG_PTR* small, LONG_PTR* large, __LONG32 start,
                                                COLORREF mask) override;

  private:
    ImageMap& m_map;
};

} // namespace Console
