#include "fit/Control.h"

#include "kit/windows.h"

#include <stdexcept>

namespace Fit
{
namespace
{

Control::Kind kindOfButton(DWORD style)
{
    switch (style & BS_TYPEMASK)
    {
    case BS_GROUPBOX:
        return Control::Kind::group;
    case BS_AUTOCHECKBOX:
        return Control::Kind::checkBox;
    case BS_AUTORADIOBUTTON:
        return Control::Kind::radioButton;
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
        return Control::Kind::button;
    default:
        throw std::logic_error("a button of another kind");
    }
}

Control::Kind kindOf(const std::wstring& type, DWORD style)
{
    if (type == L"Button")
    {
        return kindOfButton(style);
    }
    if (type == L"Static")
    {
        return Control::Kind::label;
    }
    if (type == L"Edit")
    {
        return Control::Kind::field;
    }
    if (type == L"ComboBox")
    {
        return Control::Kind::dropDownList;
    }
    if (type == L"ListBox")
    {
        return Control::Kind::list;
    }
    throw std::logic_error("a control of another class");
}

// Where the mark is, before its letter; npos without one. Two ampersands are one of the text's own.
std::size_t markOf(const std::wstring& text)
{
    std::size_t place = text.find(L'&');
    while (place != std::wstring::npos && place + 1 < text.size() && text[place + 1] == L'&')
    {
        place = text.find(L'&', place + 2);
    }
    return place != std::wstring::npos && place + 1 < text.size() ? place : std::wstring::npos;
}

bool shareARow(const RECT& one, const RECT& other)
{
    return one.top < other.bottom && other.top < one.bottom;
}

bool shareAColumn(const RECT& one, const RECT& other)
{
    return one.left < other.right && other.left < one.right;
}

} // namespace

Control controlOf(HWND dialog, HWND window)
{
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return {window, GetDlgCtrlID(window),           kindOf(Acceptance::windowClass(window), style),
            style,  Acceptance::windowText(window), place};
}

Controls controlsOf(HWND dialog)
{
    Controls controls;
    for (const HWND window : Acceptance::childWindows(dialog))
    {
        controls.push_back(controlOf(dialog, window));
    }
    return controls;
}

std::wstring describe(const Control& control)
{
    return std::to_wstring(control.id) + (control.text.empty() ? L"" : L" \"" + control.text + L"\"");
}

wchar_t mnemonicOf(const std::wstring& text)
{
    const std::size_t mark = markOf(text);
    return mark == std::wstring::npos ? L'\0' : static_cast<wchar_t>(towupper(text[mark + 1]));
}

std::wstring spoken(std::wstring text)
{
    const std::size_t mark = markOf(text);
    if (mark != std::wstring::npos)
    {
        text.erase(mark, 1);
    }
    if (text.ends_with(L':'))
    {
        text.pop_back();
    }
    return text;
}

bool isRightOf(const RECT& one, const RECT& other)
{
    return shareARow(one, other) && one.left >= other.right;
}

bool isBelow(const RECT& one, const RECT& other)
{
    return shareAColumn(one, other) && one.top >= other.bottom;
}

} // namespace Fit
