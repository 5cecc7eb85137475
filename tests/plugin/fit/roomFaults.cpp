#include "fit/faults.h"

#include "kit/windows.h"

namespace Fit
{
namespace
{

using Kind = Control::Kind;

// Dialog units beside the text of a push button, and of a group's title.
constexpr int beside = 2;
constexpr int besideTitle = 6;

SIZE inPixels(HWND dialog, int units)
{
    RECT area{0, 0, units, units};
    MapDialogRect(dialog, &area);
    return {area.right, area.bottom};
}

SIZE sizeOf(const RECT& area)
{
    return {area.right - area.left, area.bottom - area.top};
}

// What the text takes in the window's font, in lines of at most that width; in one line where it is 0.
SIZE sizeOf(HWND window, const std::wstring& text, LONG width, UINT format)
{
    const HDC context = GetDC(window);
    const HGDIOBJ former = SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    RECT area{0, 0, width, 0};
    DrawTextW(context, text.c_str(), -1, &area, DT_CALCRECT | format | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
    SelectObject(context, former);
    ReleaseDC(window, context);
    return sizeOf(area);
}

// As long as it may become in another language.
std::wstring translated(const std::wstring& text)
{
    return text + text.substr(0, (text.size() + 2) / 3);
}

// The texts that stand in the control, one after another.
std::vector<std::wstring> textsOf(const Control& control)
{
    if (control.kind != Kind::dropDownList)
    {
        return {control.text};
    }
    std::vector<std::wstring> entries;
    for (LRESULT i = 0; i < SendMessageW(control.window, CB_GETCOUNT, 0, 0); ++i)
    {
        const auto index = static_cast<WPARAM>(i);
        std::wstring entry(static_cast<std::size_t>(SendMessageW(control.window, CB_GETLBTEXTLEN, index, 0)), L'\0');
        SendMessageW(control.window, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(entry.data()));
        entries.push_back(std::move(entry));
    }
    return entries;
}

// Besides its text.
SIZE frameOf(HWND dialog, Kind kind)
{
    const LONG edge = 2L * GetSystemMetrics(SM_CYEDGE);
    switch (kind)
    {
    case Kind::button:
        return {2 * inPixels(dialog, beside).cx, edge};
    case Kind::checkBox:
    case Kind::radioButton:
        return {GetSystemMetrics(SM_CXMENUCHECK) + inPixels(dialog, beside).cx, 0};
    case Kind::group:
        return {2 * inPixels(dialog, besideTitle).cx, 0};
    case Kind::dropDownList:
        return {GetSystemMetrics(SM_CXVSCROLL) + edge, edge};
    default:
        return {0, 0};
    }
}

// A field scrolls, and so does a list. A label that ends in an ellipsis says so itself.
bool holdsText(const Control& control)
{
    return control.kind != Kind::field && control.kind != Kind::list &&
           !(control.kind == Kind::label && (control.style & SS_ENDELLIPSIS) != 0);
}

bool isCut(HWND dialog, const Control& control, const std::wstring& text)
{
    const bool isLabel = control.kind == Kind::label;
    const SIZE room = sizeOf(control.place);
    const SIZE frame = frameOf(dialog, control.kind);
    const SIZE size = sizeOf(control.window, text, isLabel ? room.cx : 0,
                             isLabel && (control.style & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0);
    return size.cx + frame.cx > room.cx || size.cy + frame.cy > room.cy;
}

// A group holds its controls below its title; all others keep to themselves.
bool collide(const Control& one, const Control& other)
{
    RECT common{};
    if (!IntersectRect(&common, &one.place, &other.place))
    {
        return false;
    }
    const Control& outer = other.kind == Kind::group ? other : one;
    const RECT& inner = other.kind == Kind::group ? one.place : other.place;
    if (outer.kind != Kind::group)
    {
        return true;
    }
    const LONG title = sizeOf(outer.window, outer.text, 0, 0).cy;
    return inner.left <= outer.place.left || inner.right >= outer.place.right || inner.top < outer.place.top + title ||
           inner.bottom >= outer.place.bottom;
}

// The caption beside the button that closes the window.
bool captionIsCut(HWND dialog)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = CreateFontIndirectW(&metrics.lfCaptionFont);
    const HDC context = GetDC(dialog);
    const HGDIOBJ former = SelectObject(context, font);
    const std::wstring text = translated(Acceptance::windowText(dialog));
    SIZE size{};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(context, former);
    ReleaseDC(dialog, context);
    DeleteObject(font);
    RECT client{};
    GetClientRect(dialog, &client);
    return size.cx + 2 * GetSystemMetrics(SM_CXSIZE) > client.right;
}

} // namespace

Faults faultsOfRoom(HWND dialog, const Controls& controls, int margin)
{
    Faults faults;
    RECT area{};
    GetClientRect(dialog, &area);
    const SIZE border = inPixels(dialog, margin);
    // The units of a dialog are rounded to pixels one by one.
    InflateRect(&area, 1 - border.cx, 1 - border.cy);
    if (captionIsCut(dialog))
    {
        faults.push_back(L"cut: the caption");
    }
    for (auto control = controls.begin(); control != controls.end(); ++control)
    {
        if (!control->isShown())
        {
            continue;
        }
        for (const std::wstring& text : textsOf(*control))
        {
            for (const std::wstring& shown : {text, translated(text)})
            {
                if (holdsText(*control) && isCut(dialog, *control, shown))
                {
                    faults.push_back(L"cut: " + std::to_wstring(control->id) + L" \"" + shown + L"\"");
                }
            }
        }
        RECT inside{};
        if (!IntersectRect(&inside, &area, &control->place) || !EqualRect(&inside, &control->place))
        {
            faults.push_back(L"beyond the margin: " + describe(*control));
        }
        for (auto earlier = controls.begin(); earlier != control; ++earlier)
        {
            if (earlier->isShown() && collide(*earlier, *control))
            {
                faults.push_back(describe(*earlier) + L" is over " + describe(*control));
            }
        }
    }
    return faults;
}

} // namespace Fit
