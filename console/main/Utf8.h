#pragma once

#include <string>
#include <string_view>

namespace Console
{

// Lone surrogates become U+FFFD, so the result is always valid UTF-8.
std::string toUtf8(std::wstring_view text);

} // namespace Console
