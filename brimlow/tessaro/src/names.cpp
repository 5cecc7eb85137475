#include "names.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>
#include <random>

namespace Tessaro
{

namespace
{

using Core::Char;
using Core::String;
using View = String::View;

// In the file systems of Windows.
constexpr std::size_t maxLength = 255;
// Temporary names: 128 random bits in hexadecimal digits between these.
constexpr wchar_t temporaryBeginning[] = L"~";
constexpr std::size_t temporaryDigits = 32;
constexpr wchar_t temporaryEnding[] = L".tmp";

template <class Units>
bool containsOneOf(View text, const Units& units)
{
    return std::find_first_of(text.begin(), text.end(), std::begin(units), std::end(units)) != text.end();
}

bool isControl(Char unit) noexcept
{
    return unit < u' ' || unit == 0x7F;
}

// Windows opens the device whatever the extension is, and passes over blanks before it.
bool isDevice(const String& name)
{
    View stem = name.view().substr(0, name.view().find(u'.'));
    while (!stem.empty() && stem.back() == u' ')
    {
        stem.remove_suffix(1);
    }
    const String device = String(stem).toUpper();
    for (const wchar_t* const one : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"})
    {
        if (device == one)
        {
            return true;
        }
    }
    // The superscript digits count as digits here.
    constexpr Char digits[] = {u'1', u'2', u'3', u'4', u'5', u'6', u'7', u'8', u'9', 0x00B9, 0x00B2, 0x00B3};
    return device.length() == 4 && (device.startsWith(L"COM") || device.startsWith(L"LPT")) &&
           containsOneOf(device.view().substr(3), digits);
}

const wchar_t* refusalOf(const String& name)
{
    constexpr Char forbidden[] = {u'\\', u'/', u':', u'*', u'?', u'"', u'<', u'>', u'|'};
    const View units = name.view();
    if (units.empty())
    {
        return L"The name is empty. Please give one.";
    }
    if (std::any_of(units.begin(), units.end(), isControl))
    {
        return L"The name \"{0}\" contains a control character.";
    }
    if (containsOneOf(units, forbidden))
    {
        return L"The name \"{0}\" contains one of the characters \\ / : * ? \" < > |, which are not allowed.";
    }
    if (units.back() == u'.' || units.back() == u' ')
    {
        return L"The name \"{0}\" ends in a dot or a blank, which Windows does not allow.";
    }
    if (isDevice(name))
    {
        return L"The name \"{0}\" is reserved by Windows for a device.";
    }
    if (units.size() > maxLength)
    {
        return L"The name \"{0}\" is too long (255 characters at most).";
    }
    if (isTemporaryName(name))
    {
        return L"The name \"{0}\" is kept for temporary files.";
    }
    return nullptr;
}

} // namespace

std::optional<String> nameRefusal(const String& name)
{
    const wchar_t* const sentence = refusalOf(name);
    return sentence ? std::optional(Core::format(sentence, name)) : std::nullopt;
}

const String& checkedName(const String& name)
{
    if (const std::optional<String> refusal = nameRefusal(name))
    {
        throw Core::Exception(*refusal);
    }
    return name;
}

String nameKey(const String& name)
{
    return name.toUpper();
}

String newTemporaryName()
{
    constexpr wchar_t digits[] = L"0123456789abcdef";
    std::random_device random;
    std::wstring name = temporaryBeginning;
    for (std::size_t digit = 0; digit < temporaryDigits; ++digit)
    {
        name += digits[random() % 16];
    }
    return name + temporaryEnding;
}

bool isTemporaryName(const String& name)
{
    const auto isDigit = [](Char unit) { return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f'); };
    const View units = name.view();
    const View digits = units.substr(std::min<std::size_t>(1, units.size()), temporaryDigits);
    return digits.size() == temporaryDigits && std::all_of(digits.begin(), digits.end(), isDigit) &&
           name == temporaryBeginning + String(digits) + temporaryEnding;
}

} // namespace Tessaro
