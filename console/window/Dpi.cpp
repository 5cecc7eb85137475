#include "Dpi.h"

namespace Console
{

namespace
{

// The function of user32, or null on a Windows that does not have it (before Windows 10).
template <class Function>
Function userFunction(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

int systemDpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace

int dpiOf(HWND window)
{
    static const auto getDpiForWindow = userFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
    const UINT dpi = getDpiForWindow != nullptr && window != nullptr ? getDpiForWindow(window) : 0;
    return dpi != 0 ? static_cast<int>(dpi) : systemDpi();
}

int scaled(int length, int dpi)
{
    return MulDiv(length, dpi, 96);
}

int unscaled(int length, int dpi)
{
    return MulDiv(length, 96, dpi);
}

platform::Font messageFont(int dpi)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    static const auto forDpi = userFunction<BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
    if (forDpi == nullptr || !forDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)))
    {
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, systemDpi());
    }
    return platform::Font(CreateFontIndirectW(&metrics.lfMessageFont));
}

int lineHeight(HWND window, HFONT font)
{
    const HDC context = GetDC(window);
    const HGDIOBJ old = SelectObject(context, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    SelectObject(context, old);
    ReleaseDC(window, context);
    return metrics.tmHeight;
}

} // namespace Console
