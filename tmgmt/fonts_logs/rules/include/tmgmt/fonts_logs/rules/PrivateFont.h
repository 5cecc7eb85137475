#pragma once

#include <optional>

#include "brimlow/system/String.h"

namespace TMgmt
{

// One mapping: which font file the server takes for a font family in one style.
struct PrivateFont
{
    Core::String family;
    Core::String file;
    bool isBold = false;
    bool isItalic = false;
};

// The key under which the plug-in stores a mapping, as "MapFont:ARIAL-BOLD-ITALIC". The family goes into it in upper
// case.
Core::String fontKey(const PrivateFont& font);

// The mapping that a key and its value are shown as; nothing for a font alias ("MapAlias:…"), which is not shown, and
// for a key that says nothing but "MapFont:". Kept as is: a family with a "-" comes out cut there and what follows
// counts for its style only, and any other key is shown like a mapping.
std::optional<PrivateFont> readFont(const Core::String& key, const Core::String& value);

inline constexpr wchar_t familyIsEmpty[] = L"Font family can not be empty.";
inline constexpr wchar_t fileIsEmpty[] = L"File name can not be empty.";

// The first fault of what was entered; null when there is none. Neither the characters of the family nor the file's
// existence are looked at: the server may see other files.
const wchar_t* faultOf(const PrivateFont& font) noexcept;

} // namespace TMgmt
