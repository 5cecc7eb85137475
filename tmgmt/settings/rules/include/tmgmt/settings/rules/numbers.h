#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace TMgmt
{

// The numbers at the beginning of a text, read as the C runtime of Windows reads them: white space before the number
// is skipped, what stands behind it is not looked at. Decimal notation only, whatever the locale is.

// A real number such as 12, -0.5, .5 or 5e2; nothing when the text does not begin with one.
std::optional<double> leadingReal(std::wstring_view text);

// An integer, 0 when the text does not begin with one; beyond the range of int its nearest end.
int leadingInteger(std::wstring_view text);

} // namespace TMgmt
