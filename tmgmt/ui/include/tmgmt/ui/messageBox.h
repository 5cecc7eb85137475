#pragma once

#include <windows.h>

namespace TMgmt
{

// The caption of every message that belongs to the product as a whole.
inline constexpr wchar_t productCaption[] = L"KV Tessaro 2010";
// The caption of every complaint that a dialog makes about its own fields.
inline constexpr wchar_t validationErrorCaption[] = L"Validation Error";

// Shows a modal message box in the module's own look. owner may be null. style is made of the MB_ constants; the
// result is the button's id (IDOK, IDYES, …).
int showMessage(HWND owner, const wchar_t* text, const wchar_t* caption, UINT style) noexcept;

} // namespace TMgmt
