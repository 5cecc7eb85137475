#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Console
{

// Whole numbers in one line of text, with a blank between two: how the console keeps places and widths.
std::wstring formatNumbers(const std::vector<int>& numbers);

// Nothing when anything else is in the text, or a number beyond that many in either direction.
std::optional<std::vector<int>> parseNumbers(const std::wstring& text, int largest);

} // namespace Console
