#include "tmgmt/frame/MMCSnapInAbout.h"

#include <cwchar>
#include <string_view>

#include "tmgmt/frame/ImageStrip.h"
#include "tmgmt/frame/ProductInformation.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/snapin/guard.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

// Copies a text into memory that the console frees.
HRESULT giveText(std::wstring_view text, LPOLESTR* out)
{
    auto* const copy = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(OLECHAR)));
    if (!copy)
    {
        return E_OUTOFMEMORY;
    }
    text.copy(copy, text.size());
    copy[text.size()] = L'\0';
    *out = copy;
    return S_OK;
}

HRESULT giveResourceText(UINT id, LPOLESTR* out)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!out)
            {
                return E_POINTER;
            }
            *out = nullptr;
            const std::wstring text = loadText(id);
            return text.empty() ? E_FAIL : giveText(text, out);
        });
}

platform::Bitmap loadBitmap(UINT id)
{
    return platform::Bitmap(LoadBitmapW(moduleInstance(), MAKEINTRESOURCEW(id)));
}

} // namespace

HRESULT MMCSnapInAbout::GetSnapinDescription(LPOLESTR* description)
{
    return giveResourceText(IDS_DESCRIPTION, description);
}

HRESULT MMCSnapInAbout::GetProvider(LPOLESTR* name)
{
    return giveResourceText(IDS_PROVIDER, name);
}

HRESULT MMCSnapInAbout::GetSnapinVersion(LPOLESTR* version)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!version)
            {
                return E_POINTER;
            }
            *version = nullptr;
            const ProductInformation product = ProductInformation::read();
            Core::String text = product.version;
            text += L" Build Number: ";
            text += product.buildNumber;
            return giveText({text.c_str(), text.length()}, version);
        });
}

HRESULT MMCSnapInAbout::GetSnapinImage(HICON* icon)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!icon)
            {
                return E_POINTER;
            }
            *icon = nullptr;
            if (!m_icon)
            {
                // LoadIconW would give one that all share and nobody may destroy.
                m_icon.reset(static_cast<HICON>(
                    LoadImageW(moduleInstance(), MAKEINTRESOURCEW(IDI_SNAPIN), IMAGE_ICON, 0, 0, LR_DEFAULTSIZE)));
            }
            *icon = m_icon.get();
            return m_icon ? S_OK : E_FAIL;
        });
}

HRESULT MMCSnapInAbout::GetStaticFolderImage(HBITMAP* smallImage, HBITMAP* smallOpenImage, HBITMAP* largeImage,
                                             COLORREF* mask)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!smallImage || !smallOpenImage || !largeImage || !mask)
            {
                return E_POINTER;
            }
            *smallImage = nullptr;
            *smallOpenImage = nullptr;
            *largeImage = nullptr;
            *mask = maskColour;
            if (!m_smallImage || !m_smallOpenImage || !m_largeImage)
            {
                m_smallImage = loadBitmap(IDB_FOLDER_SMALL);
                m_smallOpenImage = loadBitmap(IDB_FOLDER_SMALL);
                m_largeImage = loadBitmap(IDB_FOLDER_LARGE);
            }
            if (!m_smallImage || !m_smallOpenImage || !m_largeImage)
            {
                return E_FAIL;
            }
            *smallImage = m_smallImage.get();
            *smallOpenImage = m_smallOpenImage.get();
            *largeImage = m_largeImage.get();
            return S_OK;
        });
}

} // namespace TMgmt
