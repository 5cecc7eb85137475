#include "templates/TemplateDialogTest.h"

#include "FileChooserSpy.h"
#include "kit/FileDialog.h"
#include "tmgmt/templates/AddTemplateDlg.h"

namespace
{

using Acceptance::FileChooserSpy;
using Acceptance::FileDialog;
using Acceptance::Owner;
using TMgmt::AddTemplateDlg;

constexpr wchar_t isEmpty[] = L"Input template can not be empty";
constexpr wchar_t isForbidden[] = L"Template name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isNotFound[] = L"Input template can not be found.  Make sure the template exists.";

class AddTemplateDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int path = 274;
    static constexpr int browse = 275;
    static constexpr int templateId = 285;

    AddTemplateDlgTest() : TemplateDialogTest(L"Add Template") {}

    // A file somewhere, with that name.
    static std::wstring makeFile(const std::wstring& name)
    {
        const auto file = Acceptance::ServerFiles::folder() / L"Documents" / name;
        Acceptance::ServerFiles::write(file, "<template/>");
        return file;
    }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(path, text); };
    }

    void expectRefused(const std::wstring& text, const wchar_t* message)
    {
        AddTemplateDlg dialog(L"Invoices");
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL);
    }
};

TEST_F(AddTemplateDlgTest, hasTheseControls)
{
    AddTemplateDlg dialog(L"Invoices");
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(
                     Acceptance::contentsOf(window.handle()),
                     (std::vector<std::wstring>{L"-1 Button &Template", L"-1 Static Template &Path:", L"274 Edit ",
                                                L"275 Button &Browse", L"-1 Static ServerTemplateID:", L"285 Edit ",
                                                L"1 Button OK", L"2 Button Cancel"}));
                 EXPECT_EQ(window.focus(), path);
                 EXPECT_TRUE(window.readOnly(templateId));
                 EXPECT_FALSE(window.readOnly(path));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()),
                           (std::vector<int>{path, browse, templateId, IDOK, IDCANCEL}));
             });
}

TEST_F(AddTemplateDlgTest, showsWhatTheServerWillCallTheTemplate)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"C:\\Data\\letter.kvd", L"Invoices:letter.kvd"},
                                                               {L"letter.kvd", L"Invoices:letter.kvd"},
                                                               {L"C:/Data/письмо.xsl", L"Invoices:письмо.xsl"},
                                                               {L"C:\\Data\\", L""},
                                                               {L"C:\\Data\\a*b", L"Invoices:a*b"},
                                                               {L"", L""}};
    AddTemplateDlg dialog(L"Invoices");
    endAfter(dialog, IDCANCEL,
             [&](ModalWindow& window)
             {
                 for (const auto& [typed, expected] : cases)
                 {
                     window.type(path, typed);
                     EXPECT_EQ(window.text(templateId), expected);
                 }
             });
}

TEST_F(AddTemplateDlgTest, startsWithTheFileThatItIsGiven)
{
    AddTemplateDlg dialog(L"Invoices");
    dialog.file.setTemplatePath(L"C:\\Data\\letter.kvd");
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(path), L"C:\\Data\\letter.kvd");
                 EXPECT_EQ(window.text(templateId), L"Invoices:letter.kvd");
             });
}

TEST_F(AddTemplateDlgTest, takesTheFileThatIsChosen)
{
    const std::wstring chosen = makeFile(L"letter.kvd");
    const FileChooserSpy spy;
    AddTemplateDlg dialog(L"Invoices");
    HWND owner = nullptr;
    inDialog(
        [&](ModalWindow& window)
        {
            owner = window.handle();
            window.press(browse);
        });
    robot().dialog(
        FileDialog::caption, [&](ModalWindow& window) { FileDialog(window).choose(chosen); }, Owner::dialog);
    endAfter(dialog, IDOK,
             [&](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(path), chosen);
                 EXPECT_EQ(window.text(templateId), L"Invoices:letter.kvd");
             });
    EXPECT_EQ(dialog.file.getTemplatePath(), chosen);
    ASSERT_EQ(spy.requests().size(), 1U);
    const FileChooserSpy::Request& request = spy.requests()[0];
    EXPECT_EQ(request.filter, L"Template files (*.kvd, *.xsl, *.xslt)|*.kvd;*.xsl;*.xslt|All Files (*.*)|*.*|");
    EXPECT_EQ(request.chosenFilter, 1U);
    EXPECT_EQ(request.capacity, 260U);
    EXPECT_EQ(request.flags, static_cast<DWORD>(OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST));
    EXPECT_EQ(request.owner, owner);
}

TEST_F(AddTemplateDlgTest, keepsWhatWasTypedWhenNoFileIsChosen)
{
    const std::wstring typed = makeFile(L"letter.kvd");
    AddTemplateDlg dialog(L"Invoices");
    inDialog(
        [&](ModalWindow& window)
        {
            window.type(path, typed);
            window.press(browse);
        });
    robot().dialog(
        FileDialog::caption, [](ModalWindow& window) { FileDialog(window).cancel(); }, Owner::dialog);
    endAfter(dialog, IDCANCEL,
             [&](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(path), typed);
                 EXPECT_EQ(window.text(templateId), L"Invoices:letter.kvd");
             });
}

TEST_F(AddTemplateDlgTest, refusesAnEmptyPath)
{
    expectRefused(L"", isEmpty);
}

TEST_F(AddTemplateDlgTest, refusesEachOfTheCharactersThatANameCanHaveHere)
{
    for (const wchar_t unit : std::wstring(L":*?\"<>|"))
    {
        expectRefused(std::wstring(L"C:\\a") + unit + L".kvd", isForbidden);
    }
    expectRefused(L"C:letter.kvd", isForbidden);
}

TEST_F(AddTemplateDlgTest, looksForTheFileLast)
{
    expectRefused(L"C:\\not\\there.kvd", isNotFound);
    expectRefused(L"C:\\not\\there*.kvd", isForbidden);
}

TEST_F(AddTemplateDlgTest, doesNotTakeAFolderForAFile)
{
    const std::filesystem::path file = makeFile(L"letter.kvd");
    expectRefused(file.parent_path(), isNotFound);
    expectRefused(file.parent_path().wstring() + L"\\", isNotFound);
}

TEST_F(AddTemplateDlgTest, staysOpenUntilThereIsAFile)
{
    const std::wstring file = makeFile(L"письмо.kvd");
    AddTemplateDlg dialog(L"Invoices");
    okIsRefused(type(L""), isEmpty);
    okIsRefused(type(file + L"x"), isNotFound);
    endAfter(dialog, IDOK, type(file));
    EXPECT_EQ(dialog.file.getTemplatePath(), file);
    EXPECT_EQ(dialog.file.getDisplayName(), L"письмо.kvd");
}

TEST_F(AddTemplateDlgTest, cancelsWithoutLookingAtAnything)
{
    AddTemplateDlg dialog(L"Invoices");
    endAfter(dialog, IDCANCEL, type(L"C:\\a*b"));
}

} // namespace
