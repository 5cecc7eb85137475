#include "Object.h"

#include <cstring>
#include <cwchar>

namespace Foreign
{

namespace
{

HRESULT copyText(const wchar_t* text, LPOLESTR* copy)
{
    const std::size_t size = (std::wcslen(text) + 1) * sizeof(wchar_t);
    *copy = static_cast<LPOLESTR>(CoTaskMemAlloc(size));
    std::memcpy(*copy, text, size);
    return S_OK;
}

HBITMAP square(int size)
{
    HDC const screen = GetDC(nullptr);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen, size, size);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

class About final : public Object<ISnapinAbout>
{
  public:
    HRESULT STDMETHODCALLTYPE GetSnapinDescription(LPOLESTR* text) override
    {
        return copyText(L"A snap-in of nobody's product", text);
    }
    HRESULT STDMETHODCALLTYPE GetProvider(LPOLESTR* text) override { return copyText(L"Nobody", text); }
    HRESULT STDMETHODCALLTYPE GetSnapinVersion(LPOLESTR* text) override { return copyText(L"7.5", text); }
    HRESULT STDMETHODCALLTYPE GetSnapinImage(HICON* icon) override
    {
        *icon = m_icon;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetStaticFolderImage(HBITMAP* small, HBITMAP* smallOpen, HBITMAP* large,
                                                   COLORREF* mask) override
    {
        *small = m_small;
        *smallOpen = m_small;
        *large = m_large;
        *mask = RGB(1, 2, 3);
        return S_OK;
    }

  protected:
    ~About() override
    {
        // The console has copied them; whoever still uses these is wrong.
        DestroyIcon(m_icon);
        DeleteObject(m_small);
        DeleteObject(m_large);
    }

  private:
    HICON m_icon = CopyIcon(LoadIconW(nullptr, IDI_INFORMATION));
    HBITMAP m_small = square(16);
    HBITMAP m_large = square(32);
};

} // namespace

IUnknown* makeAbout()
{
    return new About;
}

} // namespace Foreign
