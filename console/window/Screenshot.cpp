#include "Screenshot.h"

#include "Failure.h"

#include "platform/handles.h"

#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <system_error>

namespace Console
{

namespace
{

using Microsoft::WRL::ComPtr;

void check(HRESULT result, const char* what)
{
    if (FAILED(result))
    {
        throw std::system_error(static_cast<int>(result), std::system_category(), what);
    }
}

// The screen itself is read, not the windows: PrintWindow gives empty pictures under Wine, and a picture with a dialog
// over its window shows both as people see them.
platform::Bitmap captureScreen(const RECT& area)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    platform::Bitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    const HGDIOBJ old = SelectObject(memory, bitmap.get());
    const BOOL copied = BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY | CAPTUREBLT);
    SelectObject(memory, old);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    if (!bitmap || !copied)
    {
        throwLastError("The screen could not be read");
    }
    return bitmap;
}

void writePng(HBITMAP bitmap, const std::filesystem::path& file)
{
    ComPtr<IWICImagingFactory> factory;
    check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory)),
          "The imaging component could not be created");
    ComPtr<IWICBitmap> source;
    check(factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, &source), "The picture is not one");
    ComPtr<IWICStream> stream;
    check(factory->CreateStream(&stream), "The picture could not be written");
    check(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE), "The file could not be created");
    ComPtr<IWICBitmapEncoder> encoder;
    check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder), "There is no PNG encoder");
    check(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache), "The picture could not be written");
    ComPtr<IWICBitmapFrameEncode> frame;
    check(encoder->CreateNewFrame(&frame, nullptr), "The picture could not be written");
    check(frame->Initialize(nullptr), "The picture could not be written");
    check(frame->WriteSource(source.Get(), nullptr), "The picture could not be written");
    check(frame->Commit(), "The picture could not be written");
    check(encoder->Commit(), "The picture could not be written");
}

} // namespace

void saveScreenshot(const RECT& area, const std::filesystem::path& file)
{
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
    const RECT screen{left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
                      top + GetSystemMetrics(SM_CYVIRTUALSCREEN)};
    RECT visible{};
    if (!IntersectRect(&visible, &area, &screen))
    {
        throw std::system_error(ERROR_INVALID_DATA, std::system_category(), "The window is outside the screen");
    }
    writePng(captureScreen(visible).get(), file);
}

} // namespace Console
