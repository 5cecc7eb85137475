#include "tmgmt/templates/rules/names.h"

#include "CommonAppData.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

using namespace TMgmt;
using Core::String;

constexpr wchar_t taken[] = L"It is taken.";
constexpr wchar_t forbidden[] = L"It is forbidden.";

// A folder with a file "letter.kvd" and a folder "Images" in it.
class NameFault : public testing::Test
{
  protected:
    void SetUp() override
    {
        std::filesystem::create_directory(m_folder.folder() / "Images");
        m_folder.write(L"letter.kvd", "x");
    }

    // As text, for comparisons; empty when there is none.
    String of(const String& name, const String& formerName = {}) const
    {
        return faultOfName(name, formerName, fromPath(m_folder.folder()), taken, forbidden);
    }

  private:
    TemporaryFolder m_folder;
};

TEST_F(NameFault, isAnEmptyNameFirstOfAll)
{
    EXPECT_EQ(of(L""), L"Name can not be empty.");
    EXPECT_EQ(of(L"", L"letter.kvd"), L"Name can not be empty.");
}

TEST_F(NameFault, isAForbiddenCharacterThen)
{
    EXPECT_EQ(of(L"a*b"), forbidden);
    EXPECT_EQ(of(L"Images/"), forbidden);
    EXPECT_EQ(of(L"a*b", L"a*b"), forbidden);
}

TEST_F(NameFault, isANameThatSomethingInTheFolderHas)
{
    EXPECT_EQ(of(L"letter.kvd"), taken);
    EXPECT_EQ(of(L"Images"), taken);
    EXPECT_EQ(of(L"Images", L"letter.kvd"), taken);
}

TEST_F(NameFault, isNotTheNameThatItHasNow)
{
    EXPECT_EQ(of(L"letter.kvd", L"letter.kvd"), L"");
}

TEST_F(NameFault, isNoOtherName)
{
    EXPECT_EQ(of(L"письмо.kvd"), L"");
    EXPECT_EQ(of(L"letter"), L"");
}

TEST_F(NameFault, hasASentenceForEveryNameUnlessThereIsABetterOne)
{
    EXPECT_EQ(String(faultOfName(L"a*b", {}, {}, taken)),
              L"Name cannot contain any of the following characters: \\ / : * ? \" < > |");
}

struct FileCase
{
    const wchar_t* path; // in a folder with a file "letter.kvd" in it; empty for none at all
    const wchar_t* name;
    const wchar_t* templateFault;
    const wchar_t* resourceFault;
};

TEST(FileFault, isToldInThisOrder)
{
    const TemporaryFolder folder;
    folder.write(L"letter.kvd", "x");
    std::filesystem::create_directory(folder.folder() / "Images");
    const wchar_t* const noTemplateName =
        L"Template name cannot contain any of the following characters: \\ / : * ? \" < > |";
    const wchar_t* const noFileName = L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
    const wchar_t* const noTemplate = L"Input template can not be found.  Make sure the template exists.";
    const wchar_t* const noFile = L"Input file can not be found.  Make sure the file exists.";
    const FileCase cases[] = {
        {L"", L"", L"Input template can not be empty", L"Input file can not be empty"},
        {L"", L"a*b", L"Input template can not be empty", L"Input file can not be empty"},
        {L"a*b", L"a*b", noTemplateName, noFileName},
        {L"letter.kvd", L"a:b", noTemplateName, noFileName},
        {L"bill.kvd", L"bill.kvd", noTemplate, noFile},
        {L"Images", L"Images", noTemplate, noFile},
        {L"letter.kvd", L"letter.kvd", L"", L""},
    };
    for (const FileCase& file : cases)
    {
        const String path = *file.path ? folder.path(file.path) : String();
        EXPECT_EQ(String(faultOfTemplate(path, file.name)), file.templateFault) << path.toUtf8();
        EXPECT_EQ(String(faultOfResourceFile(path, file.name)), file.resourceFault) << path.toUtf8();
    }
}

TEST(TemplateImage, isAnotherOneForStylesheetsOnly)
{
    for (const wchar_t* const name : {L"letter.xsl", L".xsl", L"a.kvd.xsl"})
    {
        EXPECT_EQ(templateImage(name), 21) << String(name).toUtf8();
    }
    for (const wchar_t* const name : {L"letter.xslt", L"letter.kvd", L"letter.XSL", L"letter.xsl ", L"xsl", L"", L"a"})
    {
        EXPECT_EQ(templateImage(name), 20) << String(name).toUtf8();
    }
}

TEST(ApplicationsFolder, isInTheCommonApplicationDataFolder)
{
    const CommonAppData data;
    data.write(L"Brimlow/ServerTemplates/Letters/letter.kvd", "x");
    EXPECT_FALSE(isPathTaken(applicationsFolder() + L"/Bills"));
    EXPECT_TRUE(isPathTaken(applicationsFolder() + L"/Letters"));
}

} // namespace
