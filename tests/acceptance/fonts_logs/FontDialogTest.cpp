#include "fonts_logs/FontsTest.h"
#include "kit/FileDialog.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"

#include <cderr.h>
#include <commdlg.h>

namespace Acceptance
{
namespace
{

constexpr wchar_t emptyFamily[] = L"Font family can not be empty.";
constexpr wchar_t emptyFile[] = L"File name can not be empty.";

// The editor itself; it is opened by the command that adds a font.
class FontDialog : public FontsTest
{
  protected:
    void SetUp() override
    {
        FontsTest::SetUp();
        Registry::preferRestart(false);
    }

    void openEditor() { view().runNodeCommand(node, addCommand); }
    void cancelAfter(Robot::Action look)
    {
        editor(
            [look = std::move(look)](ModalWindow& dialog)
            {
                look(dialog);
                dialog.press(IDCANCEL);
            });
        openEditor();
    }
};

TEST_F(FontDialog, hasItsTexts)
{
    openNode();
    cancelAfter(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"B&rowse...", dialog.text(FontEditor::browse));
            EXPECT_EQ(L"Is &Bold", dialog.text(FontEditor::bold));
            EXPECT_EQ(L"Is &Italic", dialog.text(FontEditor::italic));
            EXPECT_EQ(L"Restart the service to apply changes.", dialog.text(FontEditor::restart));
            EXPECT_EQ(L"OK", dialog.text(IDOK));
            EXPECT_EQ(L"Cancel", dialog.text(IDCANCEL));
            std::vector<std::wstring> labels;
            for (const HWND child : childWindows(dialog.handle()))
            {
                const int id = GetDlgCtrlID(child);
                if (id == -1 || id == 0xFFFF)
                {
                    labels.push_back(windowText(child));
                }
            }
            EXPECT_EQ((Cells{L"&Select the font file", L"F&ont File:", L"&Describe the font", L"&Name:"}), labels);
        });
}

TEST_F(FontDialog, isWalkedThroughFromTheFileToCancel)
{
    openNode();
    cancelAfter(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(FontEditor::file, dialog.focus());
            std::vector<int> order;
            HWND control = dialog.control(FontEditor::file);
            do
            {
                order.push_back(GetDlgCtrlID(control));
                control = GetNextDlgTabItem(dialog.handle(), control, FALSE);
            } while (control != dialog.control(FontEditor::file) && order.size() < 20);
            EXPECT_EQ((std::vector<int>{FontEditor::file, FontEditor::browse, FontEditor::name, FontEditor::bold,
                                        FontEditor::italic, FontEditor::restart, IDOK, IDCANCEL}),
                      order);
        });
}

TEST_F(FontDialog, refusesAnEmptyFamilyFirstAndStaysOpenWithItsInput)
{
    openNode();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    refusal(emptyFamily);
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(FontEditor::file, L"a.ttf");
            dialog.setChecked(FontEditor::italic, true);
            dialog.press(IDOK);
        });
    refusal(emptyFamily);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"a.ttf", dialog.text(FontEditor::file));
            EXPECT_TRUE(dialog.checked(FontEditor::italic));
            dialog.type(FontEditor::file, L"");
            dialog.type(FontEditor::name, L"Arial");
            dialog.press(IDOK);
        });
    refusal(emptyFile);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"Arial", dialog.text(FontEditor::name));
            dialog.type(FontEditor::file, L"b.ttf");
            dialog.press(IDOK);
        });
    openEditor();
    EXPECT_EQ((Entries{{L"MapFont:ARIAL-ITALIC", L"b.ttf"}}), stored());
}

TEST_F(FontDialog, writesNothingWhenItIsCancelledAfterARefusal)
{
    openNode();
    enter({.family = L"Arial", .file = L""});
    refusal(emptyFile);
    editor([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    openEditor();
    EXPECT_FALSE(fileExists());
}

TEST_F(FontDialog, confirmsWithTheEnterKey)
{
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(FontEditor::file, L"a.ttf");
            dialog.type(FontEditor::name, L"Arial");
            dialog.key(VK_RETURN);
        });
    openEditor();
    EXPECT_EQ(L"a.ttf", stored(L"MapFont:ARIAL"));
}

TEST_F(FontDialog, keepsAPathOfThousandsOfCharacters)
{
    const std::wstring path(5000, L'p');
    openNode();
    add({.family = L"Arial", .file = path});
    EXPECT_EQ(path, stored(L"MapFont:ARIAL"));
    EXPECT_EQ(path, view().cell(L"ARIAL", L"Font File Path"));
}

// The system's dialog behind the button "Browse...".
class FontBrowse : public FontDialog
{
  protected:
    using OpenSpy = ImportSpy<"GetOpenFileNameW", decltype(GetOpenFileNameW)>;

    static std::wstring windowsFile(const wchar_t* name)
    {
        wchar_t folder[MAX_PATH];
        GetWindowsDirectoryW(folder, MAX_PATH);
        return std::wstring(folder) + L"\\" + name;
    }

    // The editor comes up with that file in its field, and "Browse..." is pressed.
    void browseFrom(const std::wstring& initial, std::source_location where = std::source_location::current())
    {
        editor(
            [initial](ModalWindow& dialog)
            {
                dialog.type(FontEditor::file, initial);
                dialog.type(FontEditor::name, L"typed");
                dialog.setChecked(FontEditor::bold, true);
                dialog.press(FontEditor::browse);
            },
            where);
    }
    void fileDialog(std::function<void(FileDialog&)> use, std::source_location where = std::source_location::current())
    {
        robot.dialog(
            FileDialog::caption,
            [use = std::move(use)](ModalWindow& window)
            {
                FileDialog dialog(window);
                use(dialog);
            },
            Owner::dialog, where);
    }
    // The editor is in front again: it has that file, and everything else as it was typed.
    void expectFile(const std::wstring& path, std::source_location where = std::source_location::current())
    {
        editor(
            [path](ModalWindow& dialog)
            {
                EXPECT_EQ(path, dialog.text(FontEditor::file));
                EXPECT_EQ(L"typed", dialog.text(FontEditor::name));
                EXPECT_TRUE(dialog.checked(FontEditor::bold));
                dialog.press(IDCANCEL);
            },
            where);
    }
};

TEST_F(FontBrowse, asksTheSystemForAFile)
{
    openNode();
    OpenSpy spy(
        [&](OPENFILENAMEW* request)
        {
            EXPECT_EQ(sizeof(OPENFILENAMEW), request->lStructSize);
            EXPECT_EQ(L"Edit Private Font", windowText(request->hwndOwner));
            EXPECT_EQ(260u, request->nMaxFile);
            EXPECT_STREQ(L"C:\\fonts\\typed.ttf", request->lpstrFile);
            EXPECT_EQ(1u, request->nFilterIndex);
            EXPECT_EQ(static_cast<DWORD>(OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST), request->Flags);
            const std::wstring filter = L"Font files (*.afm, *.pfm, *.ttf, *.otf)|*.afm;*.pfm;*.ttf;*.otf|"
                                        L"All Files (*.*)|*.*||";
            std::wstring asked(request->lpstrFilter, filter.size());
            std::ranges::replace(asked, L'\0', L'|');
            EXPECT_EQ(filter, asked);
            PostMessageW(request->hwndOwner, WM_COMMAND, IDCANCEL, 0);
            return FALSE;
        });
    browseFrom(L"C:\\fonts\\typed.ttf");
    openEditor();
    EXPECT_EQ(1, spy.calls());
}

TEST_F(FontBrowse, takesTheFileThatIsChosen)
{
    const std::wstring file = windowsFile(L"win.ini");
    ASSERT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.c_str()));
    openNode();
    browseFrom(L"");
    fileDialog(
        [&](FileDialog& dialog)
        {
            EXPECT_EQ(L"", dialog.name());
            EXPECT_EQ((Cells{L"Font files (*.afm, *.pfm, *.ttf, *.otf)", L"All Files (*.*)"}), dialog.filters());
            EXPECT_EQ(0, dialog.chosenFilter());
            dialog.choose(file);
        });
    editor(
        [&](ModalWindow& dialog)
        {
            EXPECT_EQ(file, dialog.text(FontEditor::file));
            EXPECT_EQ(L"typed", dialog.text(FontEditor::name));
            dialog.press(IDOK);
        });
    openEditor();
    EXPECT_EQ((Entries{{L"MapFont:TYPED-BOLD", file}}), stored());
}

TEST_F(FontBrowse, changesNothingWhenItIsCancelled)
{
    openNode();
    browseFrom(windowsFile(L"win.ini"));
    fileDialog(
        [](FileDialog& dialog)
        {
            EXPECT_EQ(L"win.ini", dialog.name());
            dialog.cancel();
        });
    expectFile(windowsFile(L"win.ini"));
    openEditor();
}

TEST_F(FontBrowse, opensWithoutANameForATextThatIsNoPath)
{
    for (const std::wstring& initial : {std::wstring(L"a<b>|\"c\"?*"), std::wstring(259, L'p') + L".ttf"})
    {
        openNode();
        browseFrom(initial);
        fileDialog([](FileDialog& dialog) { dialog.cancel(); });
        expectFile(initial);
        openEditor();
        close();
    }
}

// Windows refuses such a text where Wine passes it over.
TEST_F(FontBrowse, opensWithoutTheNameThatTheSystemRefuses)
{
    openNode();
    bool refused = false;
    OpenSpy open(
        [&](OPENFILENAMEW* request)
        {
            refused = request->lpstrFile[0] != L'\0';
            return refused ? FALSE : open.callThrough(request);
        });
    ImportSpy<"CommDlgExtendedError", decltype(CommDlgExtendedError)> error(
        [&]() -> DWORD { return refused ? FNERR_INVALIDFILENAME : error.callThrough(); });
    browseFrom(L"a<b>");
    fileDialog([](FileDialog& dialog) { dialog.cancel(); });
    expectFile(L"a<b>");
    openEditor();
    EXPECT_EQ(2, open.calls());
}

TEST_F(FontBrowse, leavesTheCurrentFolderOfTheConsoleAlone)
{
    const std::filesystem::path folder = ServerFiles::programFolder();
    std::filesystem::current_path(folder);
    openNode();
    browseFrom(L"");
    fileDialog([](FileDialog& dialog) { dialog.choose(windowsFile(L"win.ini")); });
    expectFile(windowsFile(L"win.ini"));
    openEditor();
    EXPECT_EQ(folder, std::filesystem::current_path());
}

// Wine's dialog cannot hold a path that is too long itself, so its room is made smaller on the way.
TEST_F(FontBrowse, saysThatAPathIsTooLong)
{
    openNode();
    OpenSpy spy(
        [&](OPENFILENAMEW* request)
        {
            request->nMaxFile = 10;
            return spy.callThrough(request);
        });
    browseFrom(L"");
    fileDialog([](FileDialog& dialog) { dialog.choose(windowsFile(L"win.ini")); });
    robot.message(
        {.text = L"The path of the file is too long. Please choose a file whose path has at most 259 characters.",
         .caption = productCaption,
         .icon = MB_ICONERROR,
         .owner = Owner::dialog});
    expectFile(L"");
    openEditor();
}

} // namespace
} // namespace Acceptance
