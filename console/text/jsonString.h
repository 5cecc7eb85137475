#pragma once

#include <string>
#include <string_view>

namespace Console
{

// A JSON string with its quotes.
std::wstring jsonString(std::wstring_view text);

} // namespace Console
