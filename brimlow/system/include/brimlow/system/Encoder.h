#pragma once

#include "brimlow/system/String.h"

#include <string>

namespace Core::Encoder
{

// The bytes of a text in UTF-8, without a byte order mark; see String::toUtf8.
inline std::string convertStringToUTF8(const String& text)
{
    return text.toUtf8();
}

} // namespace Core::Encoder
