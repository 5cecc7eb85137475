#include "tmgmt/settings/rules/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace TMgmt
{
namespace
{

bool isSpace(wchar_t c) noexcept
{
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

// The text from its first character that is no white space on, up to the first that no number has.
std::string numberCharacters(std::wstring_view text)
{
    const auto begin = std::find_if_not(text.begin(), text.end(), isSpace);
    std::string result;
    for (auto at = begin; at != text.end() && *at > 0 && *at < 128; ++at)
    {
        const char c = static_cast<char>(*at);
        if (std::string_view("0123456789+-.eE").find(c) == std::string_view::npos)
        {
            break;
        }
        result.push_back(c);
    }
    // from_chars takes a minus sign, but no plus.
    if (result.starts_with('+'))
    {
        result.erase(0, 1);
        if (result.starts_with('-'))
        {
            result.clear();
        }
    }
    return result;
}

} // namespace

std::optional<double> leadingReal(std::wstring_view text)
{
    const std::string digits = numberCharacters(text);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument)
    {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range)
    {
        // Too large or too small to hold: from_chars does not say which, the sign of the exponent does.
        const std::string_view used(digits.data(), end);
        const bool tiny = used.find("e-") != std::string_view::npos || used.find("E-") != std::string_view::npos ||
                          used.find_first_of("eE") == std::string_view::npos;
        const double magnitude = tiny ? 0.0 : std::numeric_limits<double>::infinity();
        return digits.starts_with('-') ? -magnitude : magnitude;
    }
    return value;
}

int leadingInteger(std::wstring_view text)
{
    const std::string digits = numberCharacters(text);
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range)
    {
        return digits.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return value;
}

} // namespace TMgmt
