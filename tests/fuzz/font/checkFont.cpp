// Any two lines as the key and value of a font's mapping: what is read of it is written as a key that reads the same.

#include "checks.h"
#include "rules.h"

#include "tmgmt/fonts_logs/rules/PrivateFont.h"

using Core::String;

void checkFont(std::string_view content)
{
    const std::vector<String> lines = linesOf(content, 2);
    const auto font = TMgmt::readFont(lines[0], lines[1]);
    require(font.has_value() || lines[0].startsWith(L"MapAlias:") || lines[0].replaceAll(L"MapFont:", {}).empty(),
            "only an alias, and a key without a family, is no mapping");
    if (!font)
    {
        return;
    }
    require(font->file == lines[1], "the value is the file, to the letter");
    require(!TMgmt::faultOf(*font) == (!font->family.empty() && !font->file.empty()), "both must be there");
    if (!font->family.empty())
    {
        const String key = TMgmt::fontKey(*font);
        const auto again = TMgmt::readFont(key, font->file);
        require(again && again->family == font->family.toUpper() && again->isBold == font->isBold &&
                    again->isItalic == font->isItalic,
                "what is written reads the same");
        require(TMgmt::fontKey(*again) == key, "a key that was written is written again");
    }
}
