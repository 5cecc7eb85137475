#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Fit
{

// A control as its user finds it.
struct Control
{
    enum class Kind
    {
        label,
        group,
        button,
        checkBox,
        radioButton,
        field,
        dropDownList,
        list
    };

    HWND window;
    int id;
    Kind kind;
    DWORD style;
    std::wstring text;
    RECT place; // in the dialog's client area, in pixels

    // The user can put something into it or press it, now or in another state of the dialog.
    bool isUsed() const { return kind != Kind::label && kind != Kind::group; }
    bool isShown() const { return (style & WS_VISIBLE) != 0; }
    // A button or a label says what it is; fields and lists are named by what stands before them.
    bool namesItself() const { return kind < Kind::field; }
};

using Controls = std::vector<Control>;

// A control of that dialog. Throws std::logic_error for a kind that is new here.
Control controlOf(HWND dialog, HWND window);

// The controls of a dialog, or of a page of a wizard, in tab order.
Controls controlsOf(HWND dialog);

// How a fault names the control: its id and text.
std::wstring describe(const Control& control);

// The letter that is underlined in the text, in capitals; null without one.
wchar_t mnemonicOf(const std::wstring& text);
// As it is spoken: without the mark of the mnemonic and the colon at the end.
std::wstring spoken(std::wstring text);

// One is right of the other in its row, or below it in its column.
bool isRightOf(const RECT& one, const RECT& other);
bool isBelow(const RECT& one, const RECT& other);

} // namespace Fit
