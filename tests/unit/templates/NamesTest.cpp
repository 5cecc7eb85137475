#include "tmgmt/templates/rules/names.h"

#include "PrintTo.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

using namespace TMgmt;
using Core::String;

TEST(ForbiddenCharacter, isEachOfTheNine)
{
    for (const wchar_t unit : {L'\\', L'/', L':', L'*', L'?', L'"', L'<', L'>', L'|'})
    {
        for (const std::wstring& name : {std::wstring(1, unit), std::wstring{L'a', unit}, std::wstring{unit, L'a'}})
        {
            EXPECT_TRUE(hasForbiddenCharacter(name)) << String(name).toUtf8();
        }
    }
}

TEST(ForbiddenCharacter, isNothingElse)
{
    for (const wchar_t* const name : {L"", L"letter.kvd", L" a ", L".", L"..", L"CON", L"name.",
                                      L"\u00E9t\u00E9 \u6771", L"'%&,;=+!@#$(){}[]^~`-_", L"a\tb"})
    {
        EXPECT_FALSE(hasForbiddenCharacter(name)) << String(name).toUtf8();
    }
    EXPECT_FALSE(hasForbiddenCharacter(std::wstring(300, L'a')));
}

TEST(PathTaken, isThatOfAFileAndOfAFolder)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.folder() / "there");
    folder.write(L"letter.kvd", "x");
    EXPECT_TRUE(isPathTaken(folder.path(L"there")));
    EXPECT_TRUE(isPathTaken(folder.path(L"letter.kvd")));
    EXPECT_FALSE(isPathTaken(folder.path(L"not there")));
}

// Proves: every occurrence of the old name is taken out of the path, not only the last one.
TEST(RenamedPath, losesEveryOccurrenceOfTheOldName)
{
#ifdef _WIN32
    EXPECT_EQ(renamedPath(L"C:\\Data\\ServerTemplates\\Templates", L"Templates", L"New"), L"C:\\Data\\Server\\New");
    EXPECT_EQ(renamedPath(L"C:\\Data\\Letters", L"Letters", L"New"), L"C:\\Data\\New");
#else
    EXPECT_EQ(renamedPath(L"/data/ServerTemplates/Templates", L"Templates", L"New"), L"/data/Server/New");
    EXPECT_EQ(renamedPath(L"/data/Letters", L"Letters", L"New"), L"/data/New");
#endif
}

TEST(ServerTemplateId, isMadeOfBothNames)
{
    EXPECT_EQ(serverTemplateId(L"Invoices", L"letter.kvd"), L"Invoices:letter.kvd");
    EXPECT_EQ(serverTemplateId(L"Invoices", L""), L"");
}

} // namespace
