#include "CaseMapping.h"

#include "caseRanges.h"

#include <algorithm>
#include <span>

namespace Core
{
namespace
{

char32_t map(std::span<const CaseRange> ranges, char32_t character) noexcept
{
    const auto range = std::ranges::lower_bound(ranges, character, {}, &CaseRange::last);
    if (range == ranges.end() || character < range->first || (character - range->first) % range->step != 0)
    {
        return character;
    }
    return static_cast<char32_t>(static_cast<std::int32_t>(character) + range->distance);
}

} // namespace

char32_t upperCase(char32_t character) noexcept
{
    return map(upperCaseRanges, character);
}

char32_t lowerCase(char32_t character) noexcept
{
    return map(lowerCaseRanges, character);
}

} // namespace Core
