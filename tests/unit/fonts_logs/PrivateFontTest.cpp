#include "tmgmt/fonts_logs/rules/PrivateFont.h"

#include "PrintTo.h"

#include <gtest/gtest.h>

using Core::String;
using TMgmt::faultOf;
using TMgmt::fontKey;
using TMgmt::PrivateFont;
using TMgmt::readFont;

namespace
{

TEST(FontKey, IsTheFamilyInUpperCaseWithTheStyleBehindIt)
{
    const struct
    {
        const wchar_t* family;
        bool bold;
        bool italic;
        const wchar_t* key;
    } cases[] = {
        {L"Frutiger", false, false, L"MapFont:FRUTIGER"},
        {L"Arial", true, false, L"MapFont:ARIAL-BOLD"},
        {L"Arial", false, true, L"MapFont:ARIAL-ITALIC"},
        {L"Arial", true, true, L"MapFont:ARIAL-BOLD-ITALIC"},
        {L"My-Font", false, false, L"MapFont:MY-FONT"},
        {L"MapFont:x", false, false, L"MapFont:MAPFONT:X"},
        {L" two  words ", false, false, L"MapFont: TWO  WORDS "},
        {L"{0}{1}", true, false, L"MapFont:{0}{1}-BOLD"},
        {L"Stra\u00DFe \u03C9 \u044F \u4E2D", false, false, L"MapFont:STRA\u00DFE \u03A9 \u042F \u4E2D"},
        {L"", true, true, L"MapFont:-BOLD-ITALIC"},
    };
    for (const auto& [family, bold, italic, key] : cases)
    {
        EXPECT_EQ(String(key), fontKey({.family = family, .file = L"x", .isBold = bold, .isItalic = italic}));
    }
}

// Proves: a family with a "-" comes out cut there and what follows counts for its style only, and any other key is
// shown like a mapping.
TEST(ReadFont, ShowsEveryKeyThatIsNoAlias)
{
    const struct
    {
        const wchar_t* key;
        const wchar_t* family;
        bool bold;
        bool italic;
    } cases[] = {
        {L"MapFont:FRUTIGER", L"FRUTIGER", false, false},
        {L"MapFont:ARIAL-BOLD", L"ARIAL", true, false},
        {L"MapFont:ARIAL-ITALIC", L"ARIAL", false, true},
        {L"MapFont:ARIAL-BOLD-ITALIC", L"ARIAL", true, true},
        {L"MapFont:ARIAL-ITALIC-BOLD", L"ARIAL", true, true},
        {L"MapFont:Arial-bold-ItAlIc", L"Arial", true, true},
        {L"MapFont:ARIAL-SEMIBOLD-X", L"ARIAL", true, false},
        {L"MapFont:ARIAL-OBLIQUE", L"ARIAL", false, false},
        // a piece that says both is bold
        {L"MapFont:ARIAL-BOLDITALIC", L"ARIAL", true, false},
        {L"MapFont:ARIAL-ITALICBOLD", L"ARIAL", true, false},
        {L"MapFont:ARIAL-BOLDITALIC-ITALIC", L"ARIAL", true, true},
        // the family ends at its first dash
        {L"MapFont:MY-FONT", L"MY", false, false},
        {L"MapFont:MY-BOLDFONT-ITALIC", L"MY", true, true},
        // the first piece says nothing about the style
        {L"MapFont:BOLD", L"BOLD", false, false},
        {L"MapFont:ITALIC-BOLD", L"ITALIC", true, false},
        // the prefix goes wherever it stands
        {L"MapFont:MapFont:ARIAL", L"ARIAL", false, false},
        {L"ARIALMapFont:", L"ARIAL", false, false},
        {L"ARIAL-MapFont:BOLD", L"ARIAL", true, false},
        {L"mapfont:ARIAL", L"mapfont:ARIAL", false, false},
        // keys of others
        {L"DefaultFont", L"DefaultFont", false, false},
        {L"mapalias:ARIAL", L"mapalias:ARIAL", false, false},
        {L" MapAlias:ARIAL", L" MapAlias:ARIAL", false, false},
        {L"MapFont:MapAlias:ARIAL", L"MapAlias:ARIAL", false, false},
        // dashes only
        {L"MapFont:-", L"", false, false},
        {L"---", L"", false, false},
        {L"-BOLD", L"", true, false},
        {L"MapFont:\u03A9\u042F\u4E2D-ITALIC", L"\u03A9\u042F\u4E2D", false, true},
    };
    for (const auto& [key, family, bold, italic] : cases)
    {
        const auto font = readFont(key, L"C:\\f.ttf");
        ASSERT_TRUE(font.has_value()) << String(key).toUtf8();
        EXPECT_EQ(String(family), font->family) << String(key).toUtf8();
        EXPECT_EQ(String(L"C:\\f.ttf"), font->file);
        EXPECT_EQ(bold, font->isBold) << String(key).toUtf8();
        EXPECT_EQ(italic, font->isItalic) << String(key).toUtf8();
    }
}

TEST(ReadFont, ShowsNeitherAliasesNorKeysWithoutContent)
{
    for (const wchar_t* key :
         {L"MapAlias:ARIAL", L"MapAlias:", L"MapAlias:MapFont:ARIAL", L"MapFont:", L"MapFont:MapFont:", L""})
    {
        EXPECT_FALSE(readFont(key, L"C:\\f.ttf").has_value()) << String(key).toUtf8();
    }
}

TEST(ReadFont, FindsWhatItsKeyWasMadeFromWhereTheFamilyHasNoDash)
{
    for (const bool bold : {false, true})
    {
        for (const bool italic : {false, true})
        {
            const PrivateFont font{.family = L"Frutiger 55", .file = L"x", .isBold = bold, .isItalic = italic};
            const auto read = readFont(fontKey(font), font.file);
            ASSERT_TRUE(read.has_value());
            EXPECT_EQ(fontKey(font), fontKey(*read)) << "an edit finds the stored key again";
        }
    }
}

TEST(FontFault, IsTheFirstOfAnEmptyFamilyAndAnEmptyFile)
{
    const struct
    {
        const wchar_t* family;
        const wchar_t* file;
        const wchar_t* fault;
    } cases[] = {
        {L"", L"", L"Font family can not be empty."},
        {L"", L"C:\\f.ttf", L"Font family can not be empty."},
        {L"Arial", L"", L"File name can not be empty."},
    };
    for (const auto& [family, file, fault] : cases)
    {
        ASSERT_NE(nullptr, faultOf({.family = family, .file = file}));
        EXPECT_STREQ(fault, faultOf({.family = family, .file = file}));
    }
    for (const wchar_t* family : {L"Arial", L" ", L"-", L"MY-FONT", L"<&\"'>\\/:*?|"})
    {
        EXPECT_EQ(nullptr, faultOf({.family = family, .file = L"no such file"}));
    }
}

} // namespace
