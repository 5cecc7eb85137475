#include "hotfolders/EditHotFolderDlgTestBase.h"

#include "brimlow/system/Exception.h"

namespace
{

using Tessaro::OutputFormat;

class EditHotFolderDlgOkTest : public EditHotFolderDlgTestBase
{
  protected:
    static Acceptance::MessageBoxSeen refusal(const Core::String& text)
    {
        return {.text = text.str(),
                .caption = L"Validation Failed",
                .icon = MB_ICONEXCLAMATION,
                .owner = Acceptance::Owner::dialog,
                .buttons = {IDOK},
                .answer = IDOK};
    }
};

TEST_F(EditHotFolderDlgOkTest, storesAllFields)
{
    const std::wstring in = makeFolder(L"new in");
    const std::wstring out = makeFolder(L"new out");
    const std::wstring style = makeStylesheet(L"style.xsl");
    EditHotFolderDlg dialog(validFolder(), false);
    inDialog(
        [&](ModalWindow& window)
        {
            window.type(input, in);
            window.type(output, out);
            window.type(pattern, L"*.xml");
            window.setChecked(restart, true);
            window.setChecked(monitoring, false);
            window.setChecked(applyStylesheet, true);
            window.type(stylesheet, style);
            window.choose(format, 12);
            window.type(pageIndex, L"7");
            window.press(IDOK);
        });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    const HotFolder& stored = dialog.hotFolder;
    EXPECT_EQ(stored.getFolder(), in);
    EXPECT_EQ(stored.getOutputFolder(), out);
    EXPECT_EQ(stored.getFileMatchPattern(), L"*.xml");
    EXPECT_EQ(stored.getBaseUrl(), style);
    EXPECT_TRUE(dialog.restart);
    EXPECT_FALSE(stored.isMonitoringEnabled());
    EXPECT_TRUE(stored.applyFolderXslTemplate());
    EXPECT_EQ(stored.getFolderXslTemplate(), style);
    EXPECT_EQ(stored.getOutputFormat(), OutputFormat::Svg);
    EXPECT_EQ(stored.getPageIndex(), 7);
}

TEST_F(EditHotFolderDlgOkTest, givesTheCheckBoxesBackAsTheyAre)
{
    for (const bool on : {true, false})
    {
        HotFolder folder = validFolder();
        folder.setEnableMonitoring(on);
        EditHotFolderDlg dialog(folder, on);
        inDialog([](ModalWindow& window) { window.press(IDOK); });
        EXPECT_EQ(dialog.show(frame()), IDOK);
        EXPECT_EQ(dialog.hotFolder.isMonitoringEnabled(), on);
        EXPECT_EQ(dialog.restart, on);
    }
}

TEST_F(EditHotFolderDlgOkTest, storesTheNumberOfTheChosenFormat)
{
    const int values[] = {1, 3, 2, 4, 5, 6, 7, 9, 10, 11, 12, 13, 14};
    for (int index = 0; index <= 12; ++index)
    {
        const HotFolder stored =
            storedAfter(validFolder(), [index](ModalWindow& window) { window.choose(format, index); });
        EXPECT_EQ(stored.getOutputFormat(), static_cast<OutputFormat>(values[index])) << index;
    }
}

TEST_F(EditHotFolderDlgOkTest, storesPdfForAStoredFormatThatIsNotOffered)
{
    HotFolder folder = validFolder();
    folder.setOutputFormat(static_cast<OutputFormat>(8));
    const HotFolder stored = storedAfter(folder, [](ModalWindow& window) { EXPECT_EQ(window.text(format), L"PDF"); });
    EXPECT_EQ(stored.getOutputFormat(), OutputFormat::Pdf);
}

// Proves: the page index of a JPEG or GIF can be edited and is stored as 0.
TEST_F(EditHotFolderDlgOkTest, storesPageIndex0ForJpegAndGifThoughItsFieldIsEnabled)
{
    for (const OutputFormat picture : {OutputFormat::Jpeg, OutputFormat::Gif})
    {
        HotFolder folder = validFolder();
        folder.setOutputFormat(picture);
        folder.setPageIndex(3);
        const HotFolder stored = storedAfter(folder,
                                             [](ModalWindow& window)
                                             {
                                                 EXPECT_TRUE(window.enabled(pageIndex));
                                                 EXPECT_EQ(window.text(pageIndex), L"3");
                                             });
        EXPECT_EQ(stored.getOutputFormat(), picture);
        EXPECT_EQ(stored.getPageIndex(), 0);
    }
}

TEST_F(EditHotFolderDlgOkTest, keepsThePageIndexOfPngAndSvgAndForgetsItForOtherFormats)
{
    for (const auto& [value, expected] : {std::pair(OutputFormat::Png, 3), std::pair(OutputFormat::Svg, 3),
                                          std::pair(OutputFormat::Pdf, 0), std::pair(OutputFormat::Tiff, 0)})
    {
        HotFolder folder = validFolder();
        folder.setOutputFormat(value);
        folder.setPageIndex(3);
        EXPECT_EQ(storedAfter(folder, [](ModalWindow&) {}).getPageIndex(), expected);
    }
}

TEST_F(EditHotFolderDlgOkTest, storesPageIndex0ForATextThatIsNoNumber)
{
    for (const wchar_t* text : {L"", L"three", L"3rd", L"99999999999"})
    {
        HotFolder folder = validFolder();
        folder.setOutputFormat(OutputFormat::Png);
        folder.setPageIndex(3);
        EXPECT_EQ(storedAfter(folder, [text](ModalWindow& window) { window.type(pageIndex, text); }).getPageIndex(), 0);
    }
}

// Kept as is: without a stylesheet its field shows the base URL, and becomes both.
TEST_F(EditHotFolderDlgOkTest, storesTheBaseUrlAsTheStylesheetWhenNoneIsApplied)
{
    HotFolder folder = validFolder();
    folder.setBaseUrl(L"http://base/");
    folder.setFolderXslTemplate(L"C:\\style.xsl");
    const HotFolder stored = storedAfter(folder, [](ModalWindow&) {});
    EXPECT_EQ(stored.getBaseUrl(), L"http://base/");
    EXPECT_EQ(stored.getFolderXslTemplate(), L"http://base/");
    EXPECT_FALSE(stored.applyFolderXslTemplate());
}

// Proves: the base URL comes from the field of the stylesheet, whatever was entered under "Settings".
TEST_F(EditHotFolderDlgOkTest, storesTheStylesheetAsTheBaseUrl)
{
    const std::wstring style = makeStylesheet(L"style.xsl");
    HotFolder folder = validFolder();
    folder.setBaseUrl(L"http://base/");
    folder.setFolderXslTemplate(style);
    folder.setApplyFolderXslTemplate(true);
    const HotFolder stored = storedAfter(folder, [](ModalWindow&) {});
    EXPECT_EQ(stored.getBaseUrl(), style);
    EXPECT_EQ(stored.getFolderXslTemplate(), style);
}

TEST_F(EditHotFolderDlgOkTest, keepsTheActions)
{
    HotFolders::Action move;
    move.setType(HotFolders::ActionType::MoveInputFile);
    move.setDestinationPath(L"C:\\Done");
    HotFolder folder = validFolder();
    folder.setOnSuccessActionList({move});
    folder.setOnFailureActionList({move, move});
    const HotFolder stored = storedAfter(folder, [](ModalWindow&) {});
    EXPECT_EQ(stored.getOnSuccessActionList(), folder.getOnSuccessActionList());
    EXPECT_EQ(stored.getOnFailureActionList(), folder.getOnFailureActionList());
}

TEST_F(EditHotFolderDlgOkTest, saysWhyItRefusesAndStaysOpenWithWhatWasEntered)
{
    HotFolder expected = validFolder();
    expected.setFolder(pathOf(L"missing"));
    Core::String reason;
    ASSERT_FALSE(expected.validate(true, reason));
    EditHotFolderDlg dialog(validFolder());
    inDialog(
        [&](ModalWindow& window)
        {
            window.type(input, pathOf(L"missing"));
            window.type(pattern, L"*.xml");
            window.press(IDOK);
        });
    robot().message(refusal(reason));
    inDialog(
        [&](ModalWindow& window)
        {
            EXPECT_EQ(window.text(input), pathOf(L"missing"));
            EXPECT_EQ(window.text(pattern), L"*.xml");
            // The copy has taken the refused values.
            EXPECT_EQ(dialog.hotFolder.getFolder(), pathOf(L"missing"));
            EXPECT_EQ(dialog.hotFolder.getFileMatchPattern(), L"*.xml");
            window.type(input, makeFolder(L"missing"));
            window.press(IDOK);
        });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.hotFolder.getFolder(), pathOf(L"missing"));
}

TEST_F(EditHotFolderDlgOkTest, refusesANewHotFolderThatWasNotFilledIn)
{
    Core::String reason;
    ASSERT_FALSE(HotFolder().validate(true, reason));
    EditHotFolderDlg dialog;
    inDialog(
        [](ModalWindow& window)
        {
            EXPECT_FALSE(window.checked(restart));
            window.press(IDOK);
        });
    robot().message(refusal(reason));
    inDialog([](ModalWindow& window) { window.press(IDCANCEL); });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditHotFolderDlgOkTest, throwsAndLogsWhenNoFormatIsSelected)
{
    std::vector<std::wstring> logged;
    Acceptance::ImportSpy<"ReportEventW", decltype(ReportEventW)> spy(
        [&](HANDLE, WORD type, WORD, DWORD, PSID, WORD count, DWORD, LPCWSTR* strings, LPVOID) -> WINBOOL
        {
            EXPECT_EQ(type, EVENTLOG_ERROR_TYPE);
            logged.insert(logged.end(), strings, strings + count);
            return TRUE;
        },
        nullptr);
    HotFolder folder = validFolder();
    folder.setOutputFormat(OutputFormat::Svg);
    folder.setPageIndex(3);
    EditHotFolderDlg dialog(folder);
    inDialog(
        [](ModalWindow& window)
        {
            SendMessageW(window.control(format), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            window.type(pattern, L"*.xml");
            window.setChecked(applyStylesheet, true);
            window.type(stylesheet, L"C:\\style.xsl");
            window.press(IDOK);
        });
    try
    {
        dialog.show(frame());
        ADD_FAILURE() << "the dialog ended";
    }
    catch (const Core::UnreacheableCodeException& exception)
    {
        EXPECT_EQ(exception.getFile(), L"EditHotFolderDlg");
        EXPECT_EQ(exception.getLine(), 335);
        ASSERT_EQ(logged.size(), 1U);
        EXPECT_EQ(logged[0], exception.getMessage().str() + L" (EditHotFolderDlg, line 335)");
    }
    // What comes before the format has been taken, what comes after it has not.
    EXPECT_EQ(dialog.hotFolder.getFileMatchPattern(), L"*.xml");
    EXPECT_EQ(dialog.hotFolder.getFolderXslTemplate(), L"C:\\style.xsl");
    EXPECT_EQ(dialog.hotFolder.getOutputFormat(), OutputFormat::Svg);
    EXPECT_EQ(dialog.hotFolder.getPageIndex(), 3);
}

} // namespace
