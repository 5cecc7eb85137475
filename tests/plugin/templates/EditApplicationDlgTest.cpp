#include "templates/TemplateDialogTest.h"

#include "tmgmt/templates/EditApplicationDlg.h"

namespace
{

using Acceptance::ServerFiles::write;
using Tessaro::XsltEngine;
using TMgmt::EditApplicationDlg;

constexpr wchar_t isEmpty[] = L"Name can not be empty.";
constexpr wchar_t isForbidden[] = L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isTaken[] = L"Folder already exists.";

class EditApplicationDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int engine = 210;
    static constexpr int name = 233;

    EditApplicationDlgTest() : TemplateDialogTest(L"Edit Application") {}

    static void makeFolder(const std::wstring& folder) { std::filesystem::create_directories(serverTemplates(folder)); }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(name, text); };
    }

    // Shows the dialog, which refuses that name with that message, and then cancels it.
    void expectRefused(EditApplicationDlg dialog, const std::wstring& text, const wchar_t* message)
    {
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL);
    }

    // Shows the dialog, which takes that name.
    void expectTaken(EditApplicationDlg dialog, const std::wstring& text)
    {
        endAfter(dialog, IDOK, type(text));
        EXPECT_EQ(dialog.name, text);
    }
};

TEST_F(EditApplicationDlgTest, hasTheseControls)
{
    EditApplicationDlg dialog;
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                           (std::vector<std::wstring>{L"-1 Button Application", L"-1 Static Name:", L"233 Edit ",
                                                      L"-1 Static Xslt Engine:", L"210 ComboBox MSXML", L"1 Button OK",
                                                      L"2 Button Cancel"}));
                 EXPECT_EQ(window.focus(), name);
                 EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{name, engine, IDOK, IDCANCEL}));
             });
}

TEST_F(EditApplicationDlgTest, offersTwoEnginesInThisOrder)
{
    EditApplicationDlg dialog;
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(SendMessageW(window.control(engine), CB_GETCOUNT, 0, 0), 2);
                 window.choose(engine, 0);
                 EXPECT_EQ(window.text(engine), L"MSXML");
                 window.choose(engine, 1);
                 EXPECT_EQ(window.text(engine), L".NET 2.0 XSLT Parser");
             });
}

TEST_F(EditApplicationDlgTest, opensItsListOfEnginesFiveTimesAsHighAsItsField)
{
    EditApplicationDlg dialog;
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 RECT closed{};
                 GetWindowRect(window.control(engine), &closed);
                 // Wine begins the list one pixel further up than Windows.
                 EXPECT_NEAR(Acceptance::openSizeOf(window.control(engine)).cy, 5 * (closed.bottom - closed.top), 1);
             });
}

TEST_F(EditApplicationDlgTest, showsNameAndEngine)
{
    EditApplicationDlg dialog(L"Счета & 請求書", XsltEngine::DotNet);
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 EXPECT_EQ(window.text(name), L"Счета & 請求書");
                 EXPECT_EQ(window.text(engine), L".NET 2.0 XSLT Parser");
             });
}

TEST_F(EditApplicationDlgTest, showsMsxmlForEveryOtherEngine)
{
    for (const int stored : {1, 0, 3, -1})
    {
        EditApplicationDlg dialog(L"Invoices", static_cast<XsltEngine>(stored));
        endAfter(dialog, IDCANCEL,
                 [stored](ModalWindow& window) { EXPECT_EQ(window.text(engine), L"MSXML") << stored; });
    }
}

TEST_F(EditApplicationDlgTest, givesTheEngineThatIsSelected)
{
    const std::pair<int, XsltEngine> cases[] = {
        {1, XsltEngine::DotNet}, {0, XsltEngine::Msxml}, {-1, XsltEngine::Msxml}};
    for (const auto& [index, expected] : cases)
    {
        EditApplicationDlg dialog(L"Invoices", XsltEngine::DotNet);
        endAfter(dialog, IDOK,
                 [index](ModalWindow& window)
                 { SendMessageW(window.control(engine), CB_SETCURSEL, static_cast<WPARAM>(index), 0); });
        EXPECT_EQ(dialog.engine, expected) << index;
    }
}

TEST_F(EditApplicationDlgTest, refusesAnEmptyName)
{
    expectRefused(EditApplicationDlg(), L"", isEmpty);
    expectRefused(EditApplicationDlg(L"Invoices"), L"", isEmpty);
}

TEST_F(EditApplicationDlgTest, refusesEachOfNineCharacters)
{
    for (const wchar_t unit : std::wstring(forbiddenCharacters))
    {
        expectRefused(EditApplicationDlg(), std::wstring(L"a") + unit, isForbidden);
    }
}

TEST_F(EditApplicationDlgTest, looksAtTheCharactersBeforeItLooksAtTheDisk)
{
    makeFolder(L"a\\b");
    expectRefused(EditApplicationDlg(), L"a\\b", isForbidden);
}

TEST_F(EditApplicationDlgTest, refusesTheNameOfAFolderWhateverTheListHas)
{
    makeFolder(L"Letters");
    expectRefused(EditApplicationDlg(), L"Letters", isTaken);
    expectRefused(EditApplicationDlg(L"Invoices"), L"Letters", isTaken);
}

TEST_F(EditApplicationDlgTest, refusesTheNameOfAFile)
{
    write(serverTemplates(L"Letters"), "");
    expectRefused(EditApplicationDlg(), L"Letters", isTaken);
}

TEST_F(EditApplicationDlgTest, letsAnApplicationKeepItsName)
{
    makeFolder(L"Invoices");
    expectTaken(EditApplicationDlg(L"Invoices"), L"Invoices");
}

// Its own folder has the name, as far as Windows is concerned.
// Proves: a change of case alone is refused, because the disk has the name already.
TEST_F(EditApplicationDlgTest, refusesTheOwnNameInAnotherCase)
{
    makeFolder(L"Invoices");
    expectRefused(EditApplicationDlg(L"Invoices"), L"INVOICES", isTaken);
}

TEST_F(EditApplicationDlgTest, leavesOtherNamesToTheLibrary)
{
    for (const std::wstring& free : {std::wstring(L"Letters"), std::wstring(L" a "), std::wstring(L"CON"),
                                     std::wstring(L"name."), std::wstring(300, L'x')})
    {
        expectTaken(EditApplicationDlg(), free);
    }
}

TEST_F(EditApplicationDlgTest, staysOpenUntilTheNameIsGood)
{
    makeFolder(L"Letters");
    EditApplicationDlg dialog;
    okIsRefused(
        [](ModalWindow& window)
        {
            window.choose(engine, 1);
            window.type(name, L"");
        },
        isEmpty);
    okIsRefused(type(L"Letters"), isTaken);
    endAfter(dialog, IDOK, type(L"Bills"));
    EXPECT_EQ(dialog.name, L"Bills");
    EXPECT_EQ(dialog.engine, XsltEngine::DotNet);
}

TEST_F(EditApplicationDlgTest, cancelsWithoutLookingAtAnything)
{
    EditApplicationDlg dialog(L"Invoices");
    endAfter(dialog, IDCANCEL, type(L"a/b"));
}

} // namespace
