#pragma once

#include <string>
#include <variant>

#include "tmgmt/settings/rules/PropertyKind.h"

namespace TMgmt
{

inline constexpr wchar_t notAReal[] = L"Please enter a valid floating point number.";
inline constexpr wchar_t realOutOfRange[] = L"Please enter a floating point number between 0 and 1000.";
inline constexpr wchar_t notABoolean[] = L"Please enter either true or false.";
inline constexpr wchar_t notAPort[] = L"Please enter a valid port number.";
inline constexpr wchar_t portOutOfRange[] = L"Please enter a port number between 1000 and 65535.";

// What the administrator typed was refused. Kept as is: a number or boolean that is refused is an error and the field
// gets its former text back, a port is a warning and the typed text stays.
struct PropertyRefusal
{
    enum class Style
    {
        // Error icon; the field gets its former text back and the focus.
        restore,
        // Warning icon; the typed text stays for correction.
        keep
    };
    const wchar_t* message;
    Style style;
};

// Checks what was typed for a setting of that kind: the text to store, or why it cannot be.
std::variant<std::wstring, PropertyRefusal> checkProperty(PropertyKind kind, const std::wstring& text);

} // namespace TMgmt
