#pragma once

#include "brimlow/system/String.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Core
{

// Characters and references of XML 1.0. "Raw" text is text as it stands in a file, in UTF-8, with references such as
// "&amp;" and "&#10;" unresolved.

// Whether XML 1.0 can hold the character at all, be it as a reference. It cannot hold most control characters.
constexpr bool isXmlCharacter(char32_t character) noexcept
{
    return character == '\t' || character == '\n' || character == '\r' || (character >= 0x20 && character <= 0xD7FF) ||
           (character >= 0xE000 && character <= 0xFFFD) || (character >= 0x10000 && character <= 0x10FFFF);
}

// Blank, tab and line ends only, or nothing.
bool isXmlSpace(std::string_view text) noexcept;

// The offset of the first "&" that does not begin a proper reference; npos when there is none.
std::size_t findBadReference(std::string_view raw) noexcept;

// The value of an attribute whose references are proper. White space that stands there as such is read as blanks, as
// XML rules; line ends and tabs that are part of the value are written as references.
String decodeAttribute(std::string_view raw);

// The raw form of a value for use between double quotes. All characters must be ones that XML can hold.
std::string encodeAttribute(const String& value);

} // namespace Core
