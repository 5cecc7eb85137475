#include "ScaledImages.h"

#include "platform/handles.h"

namespace Console
{

ScaledImages::~ScaledImages()
{
    ImageList_Destroy(m_copy);
}

HIMAGELIST ScaledImages::make(HIMAGELIST source, int size)
{
    ImageList_Destroy(m_copy);
    m_copy = nullptr;
    int width = 0;
    int height = 0;
    if (source == nullptr || !ImageList_GetIconSize(source, &width, &height) || (width == size && height == size))
    {
        return source;
    }
    m_copy = ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, ImageList_GetImageCount(source), 16);
    follow(source);
    return m_copy;
}

void ScaledImages::follow(HIMAGELIST source)
{
    if (m_copy == nullptr)
    {
        return;
    }
    int size = 0;
    int height = 0;
    ImageList_GetIconSize(m_copy, &size, &height);
    for (int i = ImageList_GetImageCount(m_copy); i < ImageList_GetImageCount(source); ++i)
    {
        const platform::Icon original(ImageList_GetIcon(source, i, ILD_TRANSPARENT));
        const platform::Icon stretched(static_cast<HICON>(CopyImage(original.get(), IMAGE_ICON, size, size, 0)));
        ImageList_AddIcon(m_copy, stretched ? stretched.get() : original.get());
    }
}

} // namespace Console
