#include "tmgmt/fonts_logs/rules/PrivateFont.h"

#include "brimlow/system/StringFormatStream.h"

namespace TMgmt
{
namespace
{

constexpr wchar_t mappingPrefix[] = L"MapFont:";
constexpr wchar_t aliasPrefix[] = L"MapAlias:";
constexpr wchar_t separator[] = L"-";

bool says(const Core::String& piece, const wchar_t* style)
{
    return piece.toLower().find(style) != Core::String::npos;
}

} // namespace

Core::String fontKey(const PrivateFont& font)
{
    return Core::format(L"MapFont:{0}{1}{2}", font.family.toUpper(), font.isBold ? L"-BOLD" : L"",
                        font.isItalic ? L"-ITALIC" : L"");
}

std::optional<PrivateFont> readFont(const Core::String& key, const Core::String& value)
{
    if (key.startsWith(aliasPrefix))
    {
        return std::nullopt;
    }
    const auto pieces = key.replaceAll(mappingPrefix, {}).split(separator);
    if (pieces.empty())
    {
        return std::nullopt;
    }
    PrivateFont font{.family = pieces.front(), .file = value};
    for (auto piece = pieces.begin() + 1; piece != pieces.end(); ++piece)
    {
        // Kept as is: a piece that says both, as "BOLDITALIC", counts as bold only.
        if (says(*piece, L"bold"))
        {
            font.isBold = true;
        }
        else if (says(*piece, L"italic"))
        {
            font.isItalic = true;
        }
    }
    return font;
}

const wchar_t* faultOf(const PrivateFont& font) noexcept
{
    if (font.family.empty())
    {
        return familyIsEmpty;
    }
    return font.file.empty() ? fileIsEmpty : nullptr;
}

} // namespace TMgmt
