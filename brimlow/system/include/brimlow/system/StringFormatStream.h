#pragma once

#include "brimlow/system/String.h"

#include <vector>

namespace Core
{

// Fills the numbered placeholders of a format with arguments, in the order in which they are put in:
//
//     StringFormatStream stream(L"{0} {1}, {2}");
//     stream << L"June" << 7 << L"2010";       // getString() is "June 7, 2010"
//
// A placeholder may occur in any order and more than once. One whose argument was not put in stays as it is, and so
// does any other text in braces. Arguments are not searched for placeholders.
class StringFormatStream
{
  public:
    explicit StringFormatStream(String format);

    StringFormatStream& operator<<(const String& argument);
    StringFormatStream& operator<<(const wchar_t* argument);
    StringFormatStream& operator<<(int argument);

    String getString() const;

  private:
    String m_format;
    std::vector<String> m_arguments;
};

// The text with these arguments in the place of its placeholders.
template <class... Arguments>
String format(const wchar_t* text, const Arguments&... arguments)
{
    StringFormatStream stream(text);
    (stream << ... << arguments);
    return stream.getString();
}

} // namespace Core
