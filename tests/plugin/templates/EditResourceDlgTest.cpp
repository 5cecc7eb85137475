#include "templates/TemplateDialogTest.h"

#include "tmgmt/templates/EditResourceDlg.h"

namespace
{

using TMgmt::EditResourceDlg;

constexpr wchar_t isEmpty[] = L"Name can not be empty.";
constexpr wchar_t isForbidden[] = L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isTaken[] = L"Folder already exists.";

class EditResourceDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int name = 280;

    EditResourceDlgTest() : TemplateDialogTest(L"Folder") {}

    // Images and letter.xsl are in the application's folder, and no library lists them.
    void SetUp() override
    {
        TemplateDialogTest::SetUp();
        std::filesystem::create_directories(serverTemplates(L"Invoices\\Images"));
        Acceptance::ServerFiles::write(serverTemplates(L"Invoices\\letter.xsl"), "x");
    }

    static EditResourceDlg dialogFor(const wchar_t* formerName)
    {
        Tessaro::ServerApplication invoices;
        invoices.setApplicationPath(serverTemplates(L"Invoices").wstring());
        return EditResourceDlg(invoices, formerName);
    }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(name, text); };
    }

    // The dialog stays open with what was typed.
    void expectRefused(const wchar_t* formerName, const std::wstring& text, const wchar_t* message)
    {
        EditResourceDlg dialog = dialogFor(formerName);
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL, [&](ModalWindow& window) { EXPECT_EQ(window.text(name), text); });
    }

    void expectTaken(const wchar_t* formerName, const std::wstring& text)
    {
        EditResourceDlg dialog = dialogFor(formerName);
        endAfter(dialog, IDOK, type(text));
        EXPECT_EQ(dialog.name, text);
    }
};

TEST_F(EditResourceDlgTest, hasTheseControls)
{
    EditResourceDlg dialog = dialogFor(L"");
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                        L"-1 Button Folder",
                                                                        L"-1 Static Name:",
                                                                        L"280 Edit ",
                                                                        L"1 Button OK",
                                                                        L"2 Button Cancel",
                                                                    }));
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{name, IDOK, IDCANCEL}));
                 EXPECT_EQ(window.focus(), name);
             });
}

TEST_F(EditResourceDlgTest, startsFromTheNameThatTheFolderHas)
{
    EditResourceDlg dialog = dialogFor(L"Images & more");
    endAfter(dialog, IDCANCEL, [](ModalWindow& window) { EXPECT_EQ(window.text(name), L"Images & more"); });
}

TEST_F(EditResourceDlgTest, refusesAnEmptyName)
{
    expectRefused(L"", L"", isEmpty);
    expectRefused(L"Images", L"", isEmpty);
}

TEST_F(EditResourceDlgTest, refusesEachForbiddenCharacter)
{
    for (const wchar_t unit : std::wstring(forbiddenCharacters))
    {
        expectRefused(L"", std::wstring(L"Im") + unit + L"ges", isForbidden);
    }
}

TEST_F(EditResourceDlgTest, takesOtherCharactersOfAnyScript)
{
    for (const wchar_t* const text : {L"\u00E9\u00E0\u00FC\u00F1\u00F8", L"\u8ACB\u6C42\u66F8", L" a", L"a & b"})
    {
        expectTaken(L"", text);
    }
}

TEST_F(EditResourceDlgTest, refusesTheNameOfWhatIsInTheApplicationsFolder)
{
    for (const wchar_t* const former : {L"", L"Texts"})
    {
        expectRefused(former, L"Images", isTaken);
        expectRefused(former, L"letter.xsl", isTaken);
        expectTaken(former, L"Pictures");
    }
}

TEST_F(EditResourceDlgTest, takesTheNameThatTheFolderHasAlready)
{
    expectTaken(L"Images", L"Images");
}

// Proves: a change of case alone is refused, because the disk has the name already.
TEST_F(EditResourceDlgTest, refusesAChangeOfCaseAlone)
{
    expectRefused(L"Images", L"images", isTaken);
}

TEST_F(EditResourceDlgTest, comparesWithTheNameThatItOpenedWith)
{
    EditResourceDlg dialog = dialogFor(L"Images");
    okIsRefused(type(L""), isEmpty);
    endAfter(dialog, IDOK, type(L"Images"));
}

TEST_F(EditResourceDlgTest, doesNotLookAtTheNameOnCancel)
{
    EditResourceDlg dialog = dialogFor(L"");
    endAfter(dialog, IDCANCEL, type(L"a*b"));
}

} // namespace
