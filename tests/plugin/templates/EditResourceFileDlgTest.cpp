#include "templates/TemplateDialogTest.h"

#include "FileChooserSpy.h"
#include "kit/FileDialog.h"
#include "tmgmt/templates/EditResourceFileDlg.h"

namespace
{

namespace ServerFiles = Acceptance::ServerFiles;
using Acceptance::FileChooserSpy;
using Acceptance::FileDialog;
using TMgmt::EditResourceFileDlg;

constexpr wchar_t isEmpty[] = L"Input file can not be empty";
constexpr wchar_t isForbidden[] = L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isNotFound[] = L"Input file can not be found.  Make sure the file exists.";

class EditResourceFileDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int path = 281;
    static constexpr int browse = 282;

    EditResourceFileDlgTest() : TemplateDialogTest(L"Add File") {}

    static std::wstring makeFile(const wchar_t* name)
    {
        const auto file = ServerFiles::folder() / L"Documents" / name;
        ServerFiles::write(file, "x");
        return file.wstring();
    }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(path, text); };
    }

    // The robot uses the system's dialog for a file, opened by this one.
    void inChooser(const std::function<void(FileDialog&)>& use)
    {
        robot().dialog(
            FileDialog::caption,
            [use](ModalWindow& window)
            {
                FileDialog chooser(window);
                use(chooser);
            },
            Acceptance::Owner::dialog);
    }

    // The dialog stays open with what was typed.
    void expectRefused(const std::wstring& text, const wchar_t* message)
    {
        EditResourceFileDlg dialog;
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL, [&](ModalWindow& window) { EXPECT_EQ(window.text(path), text); });
    }
};

TEST_F(EditResourceFileDlgTest, hasTheseControls)
{
    EditResourceFileDlg dialog;
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                        L"-1 Button &File",
                                                                        L"-1 Static File &Path:",
                                                                        L"281 Edit ",
                                                                        L"282 Button &Browse",
                                                                        L"1 Button OK",
                                                                        L"2 Button Cancel",
                                                                    }));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{path, browse, IDOK, IDCANCEL}));
                 EXPECT_EQ(window.focus(), path);
             });
}

TEST_F(EditResourceFileDlgTest, takesAnExistingFile)
{
    for (const wchar_t* const name : {L"logo.png", L"\u00E9\u00E0 \u8ACB.txt", L"without an ending"})
    {
        const std::wstring file = makeFile(name);
        EditResourceFileDlg dialog;
        endAfter(dialog, IDOK, type(file));
        EXPECT_EQ(dialog.file.getResourceFilePath(), file);
        EXPECT_EQ(dialog.file.getDisplayName(), name);
    }
}

TEST_F(EditResourceFileDlgTest, refusesAnEmptyPath)
{
    expectRefused(L"", isEmpty);
}

TEST_F(EditResourceFileDlgTest, refusesANameWithAForbiddenCharacterWhetherOrNotItIsFound)
{
    // Slashes divide the path, and so are in no name.
    for (const wchar_t unit : {L':', L'*', L'?', L'"', L'<', L'>', L'|'})
    {
        expectRefused(std::wstring(L"C:\\lo") + unit + L"go.png", isForbidden);
    }
    // A stream of a file can be found, but its name is none for a file.
    expectRefused(makeFile(L"logo.png") + L":stream", isForbidden);
}

TEST_F(EditResourceFileDlgTest, refusesWhatIsNotFound)
{
    const std::wstring file = makeFile(L"logo.png");
    const std::wstring folder = std::filesystem::path(file).parent_path().wstring();
    for (const std::wstring& text : {folder + L"\\no logo.png", folder, folder + L"\\", std::wstring(L" ")})
    {
        expectRefused(text, isNotFound);
    }
}

// Proves: the pattern of the pictures has endings that its label does not name.
TEST_F(EditResourceFileDlgTest, browsesForPicturesTextsOrAnyFile)
{
    const std::wstring file = makeFile(L"logo.png");
    const FileChooserSpy spy;
    EditResourceFileDlg dialog;
    HWND owner = nullptr;
    inDialog(
        [&](ModalWindow& window)
        {
            owner = window.handle();
            window.press(browse);
        });
    inChooser(
        [&](FileDialog& chooser)
        {
            EXPECT_EQ(chooser.filters(),
                      (std::vector<std::wstring>{L"Image files (*.bmp, *.png, *.gif, *.jpeg, *.tiff, *.svg)",
                                                 L"Text files (*.txt)", L"All Files (*.*)"}));
            EXPECT_EQ(chooser.chosenFilter(), 0);
            chooser.choose(file);
        });
    endAfter(dialog, IDOK, [&](ModalWindow& window) { EXPECT_EQ(window.text(path), file); });
    EXPECT_EQ(dialog.file.getResourceFilePath(), file);
    ASSERT_EQ(spy.requests().size(), 1U);
    const FileChooserSpy::Request& request = spy.requests()[0];
    // The pattern of the pictures has .jpg and .tif too, which the label does not name: kept as is.
    EXPECT_EQ(request.filter, L"Image files (*.bmp, *.png, *.gif, *.jpeg, *.tiff, *.svg)|"
                              L"*.bmp;*.png;*.gif;*.jpg;*.jpeg;*.tif;*.tiff;*.svg|"
                              L"Text files (*.txt)|*.txt|"
                              L"All Files (*.*)|*.*|");
    EXPECT_EQ(request.chosenFilter, 1U);
    EXPECT_EQ(request.capacity, 260U);
    // OFN_PATHMUSTEXIST and OFN_FILEMUSTEXIST.
    EXPECT_EQ(request.flags, 0x800U | 0x1000U);
    EXPECT_EQ(request.owner, owner);
}

TEST_F(EditResourceFileDlgTest, keepsItsFieldWhenTheChooserIsCancelled)
{
    EditResourceFileDlg dialog;
    inDialog(
        [](ModalWindow& window)
        {
            window.type(path, L"C:\\typed.png");
            window.press(browse);
        });
    inChooser([](FileDialog& chooser) { chooser.cancel(); });
    endAfter(dialog, IDCANCEL, [](ModalWindow& window) { EXPECT_EQ(window.text(path), L"C:\\typed.png"); });
}

} // namespace
