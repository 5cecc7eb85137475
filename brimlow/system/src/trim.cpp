#include "brimlow/system/trim.h"

namespace Core
{
namespace
{

// All characters with the property White_Space; none is outside the first plane, so units are enough.
constexpr char16_t blanks[] =
    u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009"
    u"\u200A\u2028\u2029\u202F\u205F\u3000";

} // namespace

String trim(const String& text)
{
    static const String all(blanks);
    const std::size_t begin = text.view().find_first_not_of(all.view());
    if (begin == String::npos)
    {
        return {};
    }
    return text.view().substr(begin, text.view().find_last_not_of(all.view()) + 1 - begin);
}

} // namespace Core
