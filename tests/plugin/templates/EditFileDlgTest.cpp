#include "templates/TemplateDialogTest.h"

#include "tmgmt/templates/EditFileDlg.h"

namespace
{

using TMgmt::EditFileDlg;

constexpr wchar_t isEmpty[] = L"Name can not be empty.";
constexpr wchar_t isForbidden[] = L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isTaken[] = L"File already exists.";

class EditFileDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int name = 233;

    EditFileDlgTest() : TemplateDialogTest(L"File") {}

    void SetUp() override
    {
        TemplateDialogTest::SetUp();
        Acceptance::ServerFiles::write(images() / L"logo.png", "x");
        Acceptance::ServerFiles::write(images() / L"other.png", "x");
        std::filesystem::create_directory(images() / L"folder");
    }

    static std::filesystem::path images() { return serverTemplates(L"Invoices\\Images"); }
    static EditFileDlg dialogFor(const wchar_t* formerName) { return {formerName, images().wstring()}; }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(name, text); };
    }

    // The dialog stays open with what was typed.
    void expectRefused(const std::wstring& text, const wchar_t* message)
    {
        EditFileDlg dialog = dialogFor(L"logo.png");
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL, [&](ModalWindow& window) { EXPECT_EQ(window.text(name), text); });
    }

    void expectTaken(const std::wstring& text)
    {
        EditFileDlg dialog = dialogFor(L"logo.png");
        endAfter(dialog, IDOK, type(text));
        EXPECT_EQ(dialog.name, text);
    }
};

TEST_F(EditFileDlgTest, hasTheseControlsAndTheFilesName)
{
    EditFileDlg dialog = dialogFor(L"a & b.png");
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                        L"-1 Button File",
                                                                        L"-1 Static Name:",
                                                                        L"233 Edit a & b.png",
                                                                        L"1 Button OK",
                                                                        L"2 Button Cancel",
                                                                    }));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{name, IDOK, IDCANCEL}));
                 EXPECT_EQ(window.focus(), name);
             });
}

TEST_F(EditFileDlgTest, refusesAnEmptyName)
{
    expectRefused(L"", isEmpty);
}

TEST_F(EditFileDlgTest, refusesEachForbiddenCharacter)
{
    for (const wchar_t unit : std::wstring(forbiddenCharacters))
    {
        expectRefused(std::wstring(L"lo") + unit + L"go.png", isForbidden);
    }
}

TEST_F(EditFileDlgTest, refusesTheNameOfWhatIsInTheFolder)
{
    expectRefused(L"other.png", isTaken);
    expectRefused(L"folder", isTaken);
}

// Proves: a change of case alone is refused, because the disk has the name already.
TEST_F(EditFileDlgTest, refusesAChangeOfCaseAlone)
{
    expectRefused(L"Logo.png", isTaken);
}

TEST_F(EditFileDlgTest, takesTheNameThatTheFileHasAlready)
{
    expectTaken(L"logo.png");
}

TEST_F(EditFileDlgTest, takesOtherNamesOfAnyScript)
{
    expectTaken(L"\u00E9\u00E0\u8ACB.png");
    expectTaken(L"logo");
}

TEST_F(EditFileDlgTest, comparesWithTheNameThatItOpenedWith)
{
    EditFileDlg dialog = dialogFor(L"logo.png");
    okIsRefused(type(L"other.png"), isTaken);
    endAfter(dialog, IDOK, type(L"logo.png"));
}

TEST_F(EditFileDlgTest, doesNotLookAtTheNameOnCancel)
{
    EditFileDlg dialog = dialogFor(L"logo.png");
    endAfter(dialog, IDCANCEL, type(L"a*b"));
}

} // namespace
