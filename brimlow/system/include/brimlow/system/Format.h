#pragma once

#include "brimlow/system/String.h"

namespace Core::Format
{

// Reads a decimal integer: an optional sign, then digits, and nothing else, blanks included. Returns false, and leaves
// value alone, when the text is anything else or does not fit an int.
bool parseInt(const String& text, int& value) noexcept;

} // namespace Core::Format
