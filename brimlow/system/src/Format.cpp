#include "brimlow/system/Format.h"

#include <limits>

namespace Core::Format
{

bool parseInt(const String& text, int& value) noexcept
{
    const bool hasSign = !text.empty() && (text[0] == u'-' || text[0] == u'+');
    const bool negative = hasSign && text[0] == u'-';
    if (text.length() == (hasSign ? 1u : 0u))
    {
        return false;
    }
    long long number = 0;
    for (const Char unit : text.view().substr(hasSign ? 1 : 0))
    {
        if (unit < u'0' || unit > u'9')
        {
            return false;
        }
        number = number * 10 + (unit - u'0');
        if (number > std::numeric_limits<int>::max() + (negative ? 1LL : 0LL))
        {
            return false;
        }
    }
    value = static_cast<int>(negative ? -number : number);
    return true;
}

} // namespace Core::Format
