#pragma once

namespace Core
{

// The one character that Unicode gives as the upper (lower) case of another: the character itself where there is none
// or where it would take several.
char32_t upperCase(char32_t character) noexcept;
char32_t lowerCase(char32_t character) noexcept;

} // namespace Core
