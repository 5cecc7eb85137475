#include "templates/TemplateDialogTest.h"

#include "tmgmt/templates/EditTemplateDlg.h"

namespace
{

using Acceptance::ServerFiles::write;
using Tessaro::ServerApplication;
using TMgmt::EditTemplateDlg;

constexpr wchar_t isEmpty[] = L"Name can not be empty.";
constexpr wchar_t isForbidden[] = L"Template name cannot contain any of the following characters: \\ / : * ? \" < > |";
constexpr wchar_t isTaken[] = L"File already exists.";

class EditTemplateDlgTest : public TemplateDialogTest
{
  protected:
    static constexpr int templateId = 232;
    static constexpr int name = 284;

    EditTemplateDlgTest() : TemplateDialogTest(L"Template") {}

    static ServerApplication invoices()
    {
        ServerApplication application;
        application.setApplicationPath(serverTemplates(L"Invoices").wstring());
        return application;
    }

    static EditTemplateDlg dialogFor(const wchar_t* templateName) { return {invoices(), templateName}; }

    static Use type(const std::wstring& text)
    {
        return [text](ModalWindow& window) { window.type(name, text); };
    }

    void expectRefused(const std::wstring& text, const wchar_t* message)
    {
        EditTemplateDlg dialog = dialogFor(L"letter.kvd");
        okIsRefused(type(text), message);
        endAfter(dialog, IDCANCEL);
    }

    void expectTaken(const std::wstring& text)
    {
        EditTemplateDlg dialog = dialogFor(L"letter.kvd");
        endAfter(dialog, IDOK, type(text));
        EXPECT_EQ(dialog.name, text);
    }
};

TEST_F(EditTemplateDlgTest, hasTheseControls)
{
    EditTemplateDlg dialog = dialogFor(L"letter.kvd");
    endAfter(
        dialog, IDCANCEL,
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                      (std::vector<std::wstring>{L"-1 Button Template", L"-1 Static Name:", L"284 Edit letter.kvd",
                                                 L"-1 Static ServerTemplateID:", L"232 Edit Invoices:letter.kvd",
                                                 L"1 Button OK", L"2 Button Cancel"}));
            EXPECT_EQ(window.focus(), name);
            EXPECT_TRUE(window.readOnly(templateId));
            EXPECT_FALSE(window.readOnly(name));
            EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{name, templateId, IDOK, IDCANCEL}));
        });
}

TEST_F(EditTemplateDlgTest, showsWhatTheServerWillCallTheTemplate)
{
    EditTemplateDlg dialog = dialogFor(L"letter.kvd");
    endAfter(dialog, IDCANCEL,
             [](ModalWindow& window)
             {
                 window.type(name, L"письмо.xsl");
                 EXPECT_EQ(window.text(templateId), L"Invoices:письмо.xsl");
                 // The whole name: here it is no path.
                 window.type(name, L"a\\b");
                 EXPECT_EQ(window.text(templateId), L"Invoices:a\\b");
                 window.type(name, L"");
                 EXPECT_EQ(window.text(templateId), L"");
             });
}

TEST_F(EditTemplateDlgTest, refusesAnEmptyName)
{
    expectRefused(L"", isEmpty);
}

TEST_F(EditTemplateDlgTest, refusesEachOfNineCharacters)
{
    for (const wchar_t unit : std::wstring(forbiddenCharacters))
    {
        expectRefused(std::wstring(L"a") + unit, isForbidden);
    }
}

TEST_F(EditTemplateDlgTest, looksAtTheCharactersBeforeItLooksAtTheDisk)
{
    write(serverTemplates(L"Invoices\\a\\b"), "");
    expectRefused(L"a\\b", isForbidden);
}

TEST_F(EditTemplateDlgTest, refusesTheNameOfAFileInTheApplicationsFolder)
{
    write(serverTemplates(L"Invoices\\bill.kvd"), "");
    expectRefused(L"bill.kvd", isTaken);
}

TEST_F(EditTemplateDlgTest, refusesTheNameOfAFolderThere)
{
    std::filesystem::create_directories(serverTemplates(L"Invoices\\Images"));
    expectRefused(L"Images", isTaken);
}

TEST_F(EditTemplateDlgTest, letsATemplateKeepItsName)
{
    write(serverTemplates(L"Invoices\\letter.kvd"), "");
    expectTaken(L"letter.kvd");
}

// Its own file has the name, as far as Windows is concerned.
// Proves: a change of case alone is refused, because the disk has the name already.
TEST_F(EditTemplateDlgTest, refusesTheOwnNameInAnotherCase)
{
    write(serverTemplates(L"Invoices\\letter.kvd"), "");
    expectRefused(L"LETTER.KVD", isTaken);
}

TEST_F(EditTemplateDlgTest, leavesOtherNamesToTheLibrary)
{
    for (const std::wstring& free : {std::wstring(L"bill.kvd"), std::wstring(L" a "), std::wstring(L"CON"),
                                     std::wstring(L"name."), std::wstring(300, L'x')})
    {
        expectTaken(free);
    }
}

TEST_F(EditTemplateDlgTest, staysOpenUntilTheNameIsGood)
{
    write(serverTemplates(L"Invoices\\bill.kvd"), "");
    EditTemplateDlg dialog = dialogFor(L"letter.kvd");
    okIsRefused(type(L""), isEmpty);
    okIsRefused(type(L"bill.kvd"), isTaken);
    endAfter(dialog, IDOK, type(L"order.kvd"));
    EXPECT_EQ(dialog.name, L"order.kvd");
}

TEST_F(EditTemplateDlgTest, cancelsWithoutLookingAtAnything)
{
    EditTemplateDlg dialog = dialogFor(L"letter.kvd");
    endAfter(dialog, IDCANCEL, type(L"a/b"));
}

} // namespace
