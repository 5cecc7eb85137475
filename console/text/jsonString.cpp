#include "jsonString.h"

#include <array>
#include <cwchar>

namespace Console
{

std::wstring jsonString(std::wstring_view text)
{
    std::wstring json = L"\"";
    for (const wchar_t c : text)
    {
        switch (c)
        {
        case L'"':
        case L'\\':
            json += L'\\';
            json += c;
            break;
        case L'\n':
            json += L"\\n";
            break;
        case L'\r':
            json += L"\\r";
            break;
        case L'\t':
            json += L"\\t";
            break;
        default:
            if (c < L' ' || c == 0x7F)
            {
                std::array<wchar_t, 7> escape{};
                std::swprintf(escape.data(), escape.size(), L"\\u%04x", static_cast<unsigned>(c));
                json += escape.data();
            }
            else
            {
                json += c;
            }
        }
    }
    return json + L"\"";
}

} // namespace Console
