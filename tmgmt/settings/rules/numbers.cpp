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

// Whether a real number that double cannot hold is beyond it rather than too close to zero; from_chars does not say.
bool isLarge(std::string_view number) noexcept
{
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
    long exponent = 0;
    if (e < number.size())
    {
        const bool negative = number.substr(e + 1).starts_with('-');
        const std::size_t skip = negative || number.substr(e + 1).starts_with('+') ? 2 : 1;
        const char* const last = number.data() + number.size();
        if (std::from_chars(number.data() + e + skip, last, exponent).ec == std::errc::result_out_of_range)
        {
            return !negative;
        }
        exponent = negative ? -exponent : exponent;
    }
    return point - first + exponent > 0;
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
        const double magnitude = isLarge({digits.data(), end}) ? std::numeric_limits<double>::infinity() : 0.0;
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
