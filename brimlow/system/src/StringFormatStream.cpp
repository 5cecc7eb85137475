#include "brimlow/system/StringFormatStream.h"

#include "brimlow/system/Format.h"

#include <utility>

namespace Core
{

StringFormatStream::StringFormatStream(String format) : m_format(std::move(format)) {}

StringFormatStream& StringFormatStream::operator<<(const String& argument)
{
    m_arguments.push_back(argument);
    return *this;
}

StringFormatStream& StringFormatStream::operator<<(const wchar_t* argument)
{
    return *this << String(argument);
}

StringFormatStream& StringFormatStream::operator<<(int argument)
{
    return *this << String(std::to_wstring(argument));
}

String StringFormatStream::getString() const
{
    const String::View format = m_format.view();
    String result;
    std::size_t copied = 0;
    for (std::size_t open = format.find(u'{'); open != String::View::npos; open = format.find(u'{', open + 1))
    {
        const std::size_t close = format.find_first_not_of(String(L"0123456789").view(), open + 1);
        if (close == String::View::npos || format[close] != u'}')
        {
            continue;
        }
        int index = 0;
        const bool isNumber = Format::parseInt(format.substr(open + 1, close - open - 1), index);
        if (!isNumber || static_cast<std::size_t>(index) >= m_arguments.size())
        {
            continue;
        }
        result += format.substr(copied, open - copied);
        result += m_arguments[static_cast<std::size_t>(index)];
        copied = close + 1;
    }
    result += format.substr(copied);
    return result;
}

} // namespace Core
