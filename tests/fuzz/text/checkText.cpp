// What the texts of the product promise for any bytes and any texts.

#include "checks.h"
#include "rules.h"

#include "brimlow/system/Format.h"
#include "brimlow/system/StringFormatStream.h"
#include "brimlow/system/trim.h"

#include <string>

using Core::String;

namespace
{

void checkConversions(std::string_view bytes, const String& text)
{
    const String read = String::fromUtf8(bytes);
    require(String::fromUtf8(read.toUtf8()) == read, "what was UTF-8 survives as UTF-8");
    const std::string written = text.toUtf8();
    require(String::fromUtf8(written).toUtf8() == written, "what is written is UTF-8");
    require(String(text.str()) == text, "a wide string holds every text");
}

void checkCase(const String& text)
{
    const String upper = text.toUpper();
    const String lower = text.toLower();
    require(upper.length() == text.length() && lower.length() == text.length(), "case keeps the length");
    require(upper.toUpper() == upper && lower.toLower() == lower, "case is changed once");
}

String joined(const std::vector<String>& pieces, const String& separator)
{
    String text;
    for (std::size_t at = 0; at < pieces.size(); ++at)
    {
        text += (at > 0 ? separator : String()) + pieces[at];
    }
    return text;
}

void checkPieces(const String& text, const String& separator, const String& other)
{
    const std::vector<String> pieces = text.split(separator);
    require(joined(pieces, separator) == text, "the pieces make the text");
    require(text.replaceAll(separator, other) == joined(pieces, separator.empty() ? separator : other),
            "what is replaced stands between the pieces");
}

void checkTrim(const String& text)
{
    const String trimmed = Core::trim(text);
    require(Core::trim(trimmed) == trimmed && text.find(trimmed) != String::npos, "trimming takes from the ends");
}

void checkParsing(const String& text)
{
    constexpr int untouched = 4711;
    int number = untouched;
    if (!Core::Format::parseInt(text, number))
    {
        require(number == untouched, "what is no number leaves the number alone");
        return;
    }
    int again = 0;
    require(Core::Format::parseInt(std::to_wstring(number), again) && again == number, "a number reads back");
}

void checkFormat(const String& format, const String& first, const String& second)
{
    const auto fill = [&](const String& text)
    { return (Core::StringFormatStream(text) << first << second).getString(); };
    require(fill(L"{0}{1}{0}") == first + second + first, "arguments are put in to the letter");
    require(format.find(L"{0}") != String::npos || format.find(L"{1}") != String::npos ||
                format.find(L"{0") != String::npos || fill(format) == format,
            "a text without placeholders stays");
}

} // namespace

void checkText(std::string_view content)
{
    const std::vector<String> lines = linesOf(content, 3);
    checkConversions(content, lines[0]);
    checkCase(lines[0]);
    checkPieces(lines[0], lines[1], lines[2]);
    checkTrim(lines[0]);
    checkParsing(lines[0]);
    checkFormat(lines[0], lines[1], lines[2]);
}
