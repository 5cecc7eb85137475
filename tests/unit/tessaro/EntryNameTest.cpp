#include "PrintTo.h"
#include "names.h"
#include "refusal.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Core::String;
using Tessaro::nameRefusal;

TEST(EntryName, MayBeWhatWindowsTakes)
{
    for (const wchar_t* const name :
         {L"a",     L"letter.xsl", L".hidden", L" leading blank", L"two  blanks", L"\u00C4pfel", L"\u65E5\u672C.kvd",
          L"100 %", L"it's",       L"a;b,c",   L"CONSOLE",        L"NULL.txt",    L"COM",        L"COM10",
          L"COM0",  L"LPTA",       L"XCOM1",   L"CON1",           L"AUXILIARY",   L"a.con",      L"CONIN",
          L"..a",   L"~",          L"~a.tmp",  L"\u00B9"})
    {
        EXPECT_EQ(std::nullopt, nameRefusal(name)) << String(name).toUtf8();
        EXPECT_EQ(name, Tessaro::checkedName(name));
    }
    EXPECT_EQ(std::nullopt, nameRefusal(std::wstring(255, L'x')));
}

TEST(EntryName, IsRefusedWithTheReason)
{
    const struct
    {
        const wchar_t* reason;
        std::vector<std::wstring> names;
    } cases[] = {
        {L"The name \"{0}\" contains a control character.",
         {L"a\x01", L"\x1F", L"tab\there", L"line\n", L"a\x7F", std::wstring(L"a\0b", 3)}},
        {L"The name \"{0}\" contains one of the characters \\ / : * ? \" < > |, which are not allowed.",
         {L"a\\b", L"a/b", L"C:", L"*", L"what?", L"\"", L"<", L">", L"a|b", L"..\\a", L"../a", L"a.txt:stream"}},
        {L"The name \"{0}\" ends in a dot or a blank, which Windows does not allow.",
         {L".", L"..", L"...", L"a.", L"a ", L" ", L"CON "}},
        {L"The name \"{0}\" is reserved by Windows for a device.",
         {L"CON", L"con", L"PRN", L"Aux", L"nul", L"NUL.txt", L"nul.tar.gz", L"con .txt", L"COM1", L"com9",
          L"COM\u00B9", L"COM\u00B2", L"LPT1", L"lpt9.prn", L"LPT\u00B3", L"CONIN$", L"conout$", L"CONOUT$.log",
          L"aux.h"}},
        {L"The name \"{0}\" is too long (255 characters at most).", {std::wstring(256, L'x')}},
        {L"The name \"{0}\" is kept for temporary files.", {L"~0123456789abcdef0123456789abcdef.tmp"}},
    };
    for (const auto& [reason, names] : cases)
    {
        for (const std::wstring& name : names)
        {
            const String sentence = String(reason).replaceAll(L"{0}", name);
            EXPECT_EQ(sentence, nameRefusal(name));
            EXPECT_EQ(sentence, refusal([&] { Tessaro::checkedName(name); }));
        }
    }
    EXPECT_EQ(L"The name is empty. Please give one.", nameRefusal(L""));
}

TEST(EntryName, IsComparedWithoutRegardToCase)
{
    EXPECT_EQ(Tessaro::nameKey(L"letter.XSL"), Tessaro::nameKey(L"LETTER.xsl"));
    EXPECT_EQ(Tessaro::nameKey(L"\u00E4"), Tessaro::nameKey(L"\u00C4"));
    EXPECT_NE(Tessaro::nameKey(L"a"), Tessaro::nameKey(L"\u00E4"));
}

TEST(EntryName, ForATimeIsLikeNoOther)
{
    const String first = Tessaro::newTemporaryName();
    EXPECT_TRUE(Tessaro::isTemporaryName(first));
    EXPECT_NE(first, Tessaro::newTemporaryName());
    for (const wchar_t* const name :
         {L"", L"~", L"~.tmp", L"0123456789abcdef0123456789abcdef.tmp", L"~0123456789abcdef0123456789abcde.tmp",
          L"~0123456789abcdef0123456789abcdeg.tmp", L"~0123456789abcdef0123456789abcdef.tm",
          L"~0123456789abcdef0123456789abcdef.tmp2", L"x~0123456789abcdef0123456789abcdef.tmp",
          L"~0123456789ABCDEF0123456789abcdef.tmp"})
    {
        EXPECT_FALSE(Tessaro::isTemporaryName(name)) << String(name).toUtf8();
    }
}

} // namespace
