#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/hotfolder/HotFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

using namespace HotFolders;

constexpr bool checkFolders = true;
constexpr bool doNotCheckFolders = false;

// A hot folder with nothing wrong, with folders and a stylesheet that exist.
class Validate : public testing::Test
{
  protected:
    Validate()
    {
        std::filesystem::create_directory(m_disk.folder() / "in");
        std::filesystem::create_directory(m_disk.folder() / "out");
        m_disk.write(L"style.xsl", "<xsl/>");
        m_folder.setFolder(m_disk.path(L"in"));
        m_folder.setOutputFolder(m_disk.path(L"out"));
    }

    // What is wrong; "valid" when nothing is.
    Core::String fault(bool withFolders) const
    {
        Core::String message = L"untouched";
        if (m_folder.validate(withFolders, message))
        {
            EXPECT_EQ(L"untouched", message);
            return L"valid";
        }
        return message;
    }

    TemporaryFolder m_disk;
    HotFolder m_folder;
};

TEST_F(Validate, AcceptsExistingFolders)
{
    EXPECT_EQ(L"valid", fault(checkFolders));
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsAnInputFolder)
{
    m_folder.setFolder(L"");
    EXPECT_EQ(L"Please enter the input folder.", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsAnOutputFolder)
{
    m_folder.setOutputFolder(L"");
    EXPECT_EQ(L"Please enter the output folder.", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsFullPaths)
{
    for (const wchar_t* path : {L"in", L"C:", L"C:in", L"\\in", L"\\\\server", L"\\\\server\\", L"\\\\\\share", L"\\\\",
                                L"..\\in", L" C:\\in", L"1:\\in", L"http://host/in"})
    {
        m_folder.setFolder(path);
        EXPECT_EQ(L"The input folder \"" + Core::String(path) +
                      L"\" is not a full path such as \"C:\\Documents\" or \"\\\\server\\share\".",
                  fault(doNotCheckFolders));
    }
    m_folder.setFolder(m_disk.path(L"in"));
    m_folder.setOutputFolder(L"out");
    EXPECT_EQ(L"The output folder \"out\" is not a full path such as \"C:\\Documents\" or \"\\\\server\\share\".",
              fault(doNotCheckFolders));
}

TEST_F(Validate, TakesEveryFormOfAFullPath)
{
    for (const wchar_t* path : {L"C:\\", L"c:\\in", L"C:/in", L"\\\\server\\share", L"//server/share",
                                L"\\\\server\\share\\in", L"\\\\?\\C:\\in", L"Z:\\\u65E5\u672C\\\U0001F600"})
    {
        m_folder.setFolder(path);
        EXPECT_EQ(L"valid", fault(doNotCheckFolders)) << Core::String(path).toUtf8();
    }
}

TEST_F(Validate, LooksForTheFoldersOnlyWhenAsked)
{
    m_folder.setFolder(m_disk.path(L"gone"));
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
    EXPECT_EQ(L"The input folder \"" + m_disk.path(L"gone") + L"\" does not exist.", fault(checkFolders));

    m_folder.setFolder(m_disk.path(L"in"));
    m_folder.setOutputFolder(m_disk.path(L"gone"));
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
    EXPECT_EQ(L"The output folder \"" + m_disk.path(L"gone") + L"\" does not exist.", fault(checkFolders));
}

TEST_F(Validate, TakesNoFileForAFolder)
{
    m_folder.setFolder(m_disk.path(L"style.xsl"));
    EXPECT_EQ(L"The input folder \"" + m_disk.path(L"style.xsl") + L"\" does not exist.", fault(checkFolders));
}

TEST_F(Validate, DemandsThatInputAndOutputDiffer)
{
    for (const wchar_t* output : {L"C:\\Data\\In", L"C:\\Data\\In\\", L"c:\\data\\IN", L"C:/Data/In//"})
    {
        m_folder.setFolder(L"C:\\Data\\In");
        m_folder.setOutputFolder(output);
        EXPECT_EQ(L"The input folder and the output folder are both \"C:\\Data\\In\".", fault(doNotCheckFolders))
            << Core::String(output).toUtf8();
    }
    m_folder.setOutputFolder(L"C:\\Data\\In\\Out");
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
    m_folder.setFolder(L"C:\\\u00C4RGER");
    m_folder.setOutputFolder(L"C:\\\u00E4rger");
    EXPECT_EQ(L"The input folder and the output folder are both \"C:\\\u00C4RGER\".", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsAPattern)
{
    m_folder.setFileMatchPattern(L"");
    EXPECT_EQ(L"Please enter the file pattern, for example \"*.*\".", fault(doNotCheckFolders));
}

TEST_F(Validate, RefusesSeparatorsInThePattern)
{
    for (const wchar_t* pattern : {L"sub\\*.xml", L"sub/*.xml", L"\\", L"*.xml/"})
    {
        m_folder.setFileMatchPattern(pattern);
        EXPECT_EQ(L"The file pattern \"" + Core::String(pattern) + L"\" must not contain \"\\\" or \"/\".",
                  fault(doNotCheckFolders));
    }
}

TEST_F(Validate, LooksAtTheStylesheetOnlyWhereItIsApplied)
{
    m_folder.setFolderXslTemplate(L"http://base");
    EXPECT_EQ(L"valid", fault(checkFolders));

    m_folder.setApplyFolderXslTemplate(true);
    EXPECT_EQ(L"The stylesheet file \"http://base\" is not a full path.", fault(doNotCheckFolders));
    m_folder.setFolderXslTemplate(L"");
    EXPECT_EQ(L"Please enter the stylesheet file, or do not apply a stylesheet.", fault(doNotCheckFolders));
    m_folder.setFolderXslTemplate(m_disk.path(L"gone.xsl"));
    EXPECT_EQ(L"The stylesheet file \"" + m_disk.path(L"gone.xsl") + L"\" does not exist.", fault(doNotCheckFolders));
    m_folder.setFolderXslTemplate(m_disk.path(L"in"));
    EXPECT_EQ(L"The stylesheet file \"" + m_disk.path(L"in") + L"\" does not exist.", fault(doNotCheckFolders));
    m_folder.setFolderXslTemplate(m_disk.path(L"style.xsl"));
    EXPECT_EQ(L"valid", fault(checkFolders));
}

TEST_F(Validate, RefusesANegativePageIndex)
{
    m_folder.setPageIndex(-1);
    EXPECT_EQ(L"The page index -1 is negative; the first page has index 0.", fault(doNotCheckFolders));
    m_folder.setPageIndex(2147483647);
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsAFolderForAMoveOnEitherOutcome)
{
    ActionList actions(1);
    actions[0].setType(ActionType::MoveInputFile);
    m_folder.setOnSuccessActionList(actions);
    EXPECT_EQ(L"The action on success that moves the input file names no folder.", fault(doNotCheckFolders));
    m_folder.setOnSuccessActionList({});
    m_folder.setOnFailureActionList(actions);
    EXPECT_EQ(L"The action on failure that moves the input file names no folder.", fault(doNotCheckFolders));
    actions[0].setDestinationPath(L"C:\\Done");
    m_folder.setOnFailureActionList(actions);
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
}

TEST_F(Validate, DemandsAWebAddressForACallOnEitherOutcome)
{
    ActionList actions(2);
    actions[1].setType(ActionType::CallWebService);
    for (const wchar_t* url :
         {L"", L"host", L"ftp://host", L"http:/host", L"http://", L"https://", L"file:///c:/x", L" http://host"})
    {
        actions[1].setHttpUrl(url);
        m_folder.setOnFailureActionList(actions);
        EXPECT_EQ(L"The action on failure calls \"" + Core::String(url) + L"\", which is not an http or https URL.",
                  fault(doNotCheckFolders));
    }
    for (const wchar_t* url : {L"http://h", L"https://host/{InputFile}", L"HTTP://host", L"HttpS://host"})
    {
        actions[1].setHttpUrl(url);
        m_folder.setOnFailureActionList(actions);
        EXPECT_EQ(L"valid", fault(doNotCheckFolders)) << Core::String(url).toUtf8();
    }
    actions[1].setHttpUrl(L"ftp://host");
    m_folder.setOnFailureActionList({});
    m_folder.setOnSuccessActionList(actions);
    EXPECT_EQ(L"The action on success calls \"ftp://host\", which is not an http or https URL.",
              fault(doNotCheckFolders));
}

TEST_F(Validate, LooksOnlyAtTheFieldOfTheActionsKind)
{
    ActionList actions(3);
    actions[0].setType(ActionType::None);
    actions[0].setHttpUrl(L"ftp://host");
    actions[1].setType(ActionType::DeleteInputFile);
    actions[1].setHttpUrl(L"ftp://host");
    actions[2].setType(ActionType::MoveInputFile);
    actions[2].setDestinationPath(L"C:\\Done");
    actions[2].setHttpUrl(L"ftp://host");
    m_folder.setOnSuccessActionList(actions);
    EXPECT_EQ(L"valid", fault(doNotCheckFolders));
}

TEST_F(Validate, ReportsTheFirstFault)
{
    m_folder.setFolder(L"");
    m_folder.setOutputFolder(L"");
    m_folder.setFileMatchPattern(L"");
    m_folder.setApplyFolderXslTemplate(true);
    m_folder.setPageIndex(-1);
    ActionList actions(1);
    actions[0].setType(ActionType::MoveInputFile);
    m_folder.setOnSuccessActionList(actions);
    m_folder.setOnFailureActionList(actions);

    EXPECT_EQ(L"Please enter the input folder.", fault(checkFolders));
    m_folder.setFolder(m_disk.path(L"in"));
    EXPECT_EQ(L"Please enter the output folder.", fault(checkFolders));
    m_folder.setOutputFolder(m_disk.path(L"in"));
    EXPECT_EQ(L"The input folder and the output folder are both \"" + m_disk.path(L"in") + L"\".", fault(checkFolders));
    m_folder.setOutputFolder(m_disk.path(L"out"));
    EXPECT_EQ(L"Please enter the file pattern, for example \"*.*\".", fault(checkFolders));
    m_folder.setFileMatchPattern(L"*.*");
    EXPECT_EQ(L"Please enter the stylesheet file, or do not apply a stylesheet.", fault(checkFolders));
    m_folder.setApplyFolderXslTemplate(false);
    EXPECT_EQ(L"The page index -1 is negative; the first page has index 0.", fault(checkFolders));
    m_folder.setPageIndex(0);
    EXPECT_EQ(L"The action on success that moves the input file names no folder.", fault(checkFolders));
    m_folder.setOnSuccessActionList({});
    EXPECT_EQ(L"The action on failure that moves the input file names no folder.", fault(checkFolders));
}

} // namespace
