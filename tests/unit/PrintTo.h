#pragma once

#include "brimlow/system/String.h"

#include <ostream>

namespace Core
{

// How a failing expectation shows a text.
inline void PrintTo(const String& text, std::ostream* stream)
{
    *stream << '"' << text.toUtf8() << '"';
}

} // namespace Core
