#include "hotfolders/EditHotFolderDlgTestBase.h"

namespace
{

using HotFolders::Action;
using HotFolders::ActionList;
using HotFolders::ActionType;

class EditHotFolderDlgTest : public EditHotFolderDlgTestBase
{
};

TEST_F(EditHotFolderDlgTest, hasTheseControls)
{
    lookAt(HotFolder(),
           [](ModalWindow& window)
           {
               EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                         (std::vector<std::wstring>{
                             L"-1 Button &Input and Output",
                             L"-1 Static Input Folder &Path:",
                             L"232 Edit ",
                             L"242 Button &Browse",
                             L"-1 Static File P&attern",
                             L"233 Edit *.*",
                             L"243 Button Monitoring is &enabled for this folder",
                             L"-1 Static &Output Folder:",
                             L"237 Edit ",
                             L"248 Button &Browse",
                             L"-1 Static O&utput File Format:",
                             L"249 ComboBox PDF",
                             L"-1 Static Page index:",
                             L"235 Edit 0",
                             L"286 Button &Apply Stylesheet",
                             L"-1 Static &Stylesheet File:",
                             L"234 Edit ",
                             L"238 Button &Browse",
                             L"-1 Static &To configure additional parameters for each conversion, like the URL used to "
                             L"resolve relative paths, click the Settings button.",
                             L"287 Button &Settings",
                             L"-1 Button Postprocessing",
                             L"-1 Static On Success:",
                             L"261 Static Do nothing",
                             L"246 Button &Edit ...",
                             L"-1 Static On &Failure",
                             L"262 Static Do nothing",
                             L"247 Button E&dit ...",
                             L"273 Button Restart the service to apply changes.",
                             L"1 Button OK",
                             L"2 Button Cancel",
                         }));
               EXPECT_EQ(window.focus(), input);
           });
}

TEST_F(EditHotFolderDlgTest, goesThroughItsControlsInReadingOrder)
{
    HotFolder folder = folderWithFormat(13);
    folder.setApplyFolderXslTemplate(true);
    lookAt(folder,
           [](ModalWindow& window)
           {
               EXPECT_EQ(Acceptance::tabOrderOf(window.handle()),
                         (Ids{input, browseInput, pattern, monitoring, output, browseOutput, format, pageIndex,
                              applyStylesheet, stylesheet, browseStylesheet, settings, editOnSuccess, editOnFailure,
                              restart, IDOK, IDCANCEL}));
           });
}

TEST_F(EditHotFolderDlgTest, offersThirteenFormatsInThisOrder)
{
    const wchar_t* const names[] = {L"PDF",  L"Postscript", L"AFP",  L"WordML", L"Silverlight", L"XPS", L"TIFF",
                                    L"HTML", L"XSL-FO",     L"JPEG", L"GIF",    L"PNG",         L"SVG"};
    lookAt(HotFolder(),
           [&](ModalWindow& window)
           {
               EXPECT_EQ(SendMessageW(window.control(format), CB_GETCOUNT, 0, 0), 13);
               for (int i = 0; i < 13; ++i)
               {
                   window.choose(format, i);
                   EXPECT_EQ(window.text(format), names[i]);
               }
           });
}

TEST_F(EditHotFolderDlgTest, showsTheStoredFormatAndPdfForOneThatIsNotOffered)
{
    const std::pair<int, int> cases[] = {{1, 0},   {3, 1}, {2, 2},  {4, 3},  {5, 4},   {6, 5},
                                         {7, 6},   {9, 7}, {10, 8}, {11, 9}, {12, 10}, {13, 11},
                                         {14, 12}, {0, 0}, {8, 0},  {15, 0}, {99, 0},  {-1, 0}};
    for (const auto& [value, index] : cases)
    {
        lookAt(folderWithFormat(value),
               [&](ModalWindow& window) { EXPECT_EQ(selectedFormat(window), index) << value; });
    }
}

TEST_F(EditHotFolderDlgTest, opensItsListOfFormatsFiveTimesAsHighAsItsField)
{
    lookAt(HotFolder(),
           [](ModalWindow& window)
           {
               RECT closed{};
               GetWindowRect(window.control(format), &closed);
               // Wine begins the list one pixel further up than Windows.
               const SIZE open = Acceptance::openSizeOf(window.control(format));
               EXPECT_NEAR(open.cy, 5 * (closed.bottom - closed.top), 1);
               EXPECT_EQ(open.cx, closed.right - closed.left);
           });
}

TEST_F(EditHotFolderDlgTest, showsFoldersPatternMonitoringAndRestart)
{
    for (const bool on : {true, false})
    {
        HotFolder folder;
        folder.setFolder(L"C:\\in");
        folder.setOutputFolder(L"C:\\out");
        folder.setFileMatchPattern(L"*.xml");
        folder.setEnableMonitoring(on);
        lookAt(
            folder,
            [on](ModalWindow& window)
            {
                EXPECT_EQ(window.text(input), L"C:\\in");
                EXPECT_EQ(window.text(output), L"C:\\out");
                EXPECT_EQ(window.text(pattern), L"*.xml");
                EXPECT_EQ(window.checked(monitoring), on);
                EXPECT_EQ(window.checked(restart), !on);
            },
            !on);
    }
}

TEST_F(EditHotFolderDlgTest, showsTheStylesheetWhenItIsApplied)
{
    HotFolder folder;
    folder.setBaseUrl(L"http://base/");
    folder.setFolderXslTemplate(L"C:\\style.xsl");
    folder.setApplyFolderXslTemplate(true);
    lookAt(folder,
           [](ModalWindow& window)
           {
               EXPECT_TRUE(window.checked(applyStylesheet));
               EXPECT_EQ(window.text(stylesheet), L"C:\\style.xsl");
               EXPECT_TRUE(window.enabled(stylesheet));
               EXPECT_TRUE(window.enabled(browseStylesheet));
           });
}

// Proves: without a stylesheet its field shows the base URL.
TEST_F(EditHotFolderDlgTest, showsTheBaseUrlDisabledInThePlaceOfAStylesheetThatIsNotApplied)
{
    HotFolder folder;
    folder.setBaseUrl(L"http://base/");
    folder.setFolderXslTemplate(L"C:\\style.xsl");
    lookAt(folder,
           [](ModalWindow& window)
           {
               EXPECT_FALSE(window.checked(applyStylesheet));
               EXPECT_EQ(window.text(stylesheet), L"http://base/");
               EXPECT_FALSE(window.enabled(stylesheet));
               EXPECT_FALSE(window.enabled(browseStylesheet));
           });
}

TEST_F(EditHotFolderDlgTest, enablesTheStylesheetWhileItIsTickedAndLeavesItsTextAlone)
{
    HotFolder folder;
    folder.setBaseUrl(L"http://base/");
    lookAt(folder,
           [](ModalWindow& window)
           {
               for (const bool apply : {true, false, true})
               {
                   window.setChecked(applyStylesheet, apply);
                   EXPECT_EQ(window.enabled(stylesheet), apply);
                   EXPECT_EQ(window.enabled(browseStylesheet), apply);
                   EXPECT_EQ(window.text(stylesheet), L"http://base/");
               }
           });
}

TEST_F(EditHotFolderDlgTest, enablesThePageIndexOnOpeningForThePictureFormats)
{
    for (int value = 0; value <= 15; ++value)
    {
        HotFolder folder = folderWithFormat(value);
        folder.setPageIndex(3);
        lookAt(folder,
               [value](ModalWindow& window)
               {
                   EXPECT_EQ(window.enabled(pageIndex), value >= 11 && value <= 14) << value;
                   EXPECT_EQ(window.text(pageIndex), L"3");
               });
    }
}

// Proves: of the entries of the list only PNG and SVG have a page index.
TEST_F(EditHotFolderDlgTest, enablesThePageIndexOnChoosingForPngAndSvgOnly)
{
    lookAt(folderWithFormat(12),
           [](ModalWindow& window)
           {
               EXPECT_TRUE(window.enabled(pageIndex));
               for (int index = 0; index <= 12; ++index)
               {
                   window.choose(format, index);
                   EXPECT_EQ(window.enabled(pageIndex), index >= 11) << index;
               }
           });
}

TEST_F(EditHotFolderDlgTest, disablesThePageIndexWhenJpegIsChosenAfterPng)
{
    lookAt(HotFolder(),
           [](ModalWindow& window)
           {
               window.choose(format, 11);
               EXPECT_TRUE(window.enabled(pageIndex));
               window.choose(format, 9);
               EXPECT_EQ(window.text(format), L"JPEG");
               EXPECT_FALSE(window.enabled(pageIndex));
           });
}

TEST_F(EditHotFolderDlgTest, describesWhatHappensAfterwards)
{
    Action call;
    call.setType(ActionType::CallWebService);
    call.setHttpUrl(L"http://host/?a=1&b=2");
    Action erase;
    erase.setType(ActionType::DeleteInputFile);
    HotFolder folder;
    folder.setOnSuccessActionList({call, erase});
    folder.setOnFailureActionList({erase});
    lookAt(folder,
           [](ModalWindow& window)
           {
               EXPECT_EQ(window.text(onSuccess), L"Call http://host/?a=1&b=2; Delete input file");
               EXPECT_EQ(window.text(onFailure), L"Delete input file");
               // An ampersand of an address is no mnemonic.
               EXPECT_TRUE(GetWindowLongW(window.control(onSuccess), GWL_STYLE) & SS_NOPREFIX);
               EXPECT_TRUE(GetWindowLongW(window.control(onFailure), GWL_STYLE) & SS_NOPREFIX);
           });
}

} // namespace
