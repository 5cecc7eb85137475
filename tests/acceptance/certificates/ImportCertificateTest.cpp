#include "certificates/CertificatesTest.h"
#include "kit/FileDialog.h"
#include "kit/ImportSpy.h"

#include <commdlg.h>
#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

constexpr wchar_t passwordCaption[] = L"Enter Password";
constexpr int password = 314;
constexpr int passwordAgain = 315;

class ImportCertificate : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        openNode();
    }

    static void finishWith(WizardWindow& wizard, const std::filesystem::path& file)
    {
        wizard.page().type(CertificateWizard::file, file.wstring());
        wizard.press(WizardWindow::finish);
    }

    // The wizard comes up and goes to the page that asks for the file, where this name is typed and Finish pressed.
    void import(const std::filesystem::path& file, std::source_location where = std::source_location::current())
    {
        wizard(
            CertificateWizard::typeCaption,
            [file](WizardWindow& wizard)
            {
                toCertificateFile(wizard);
                finishWith(wizard, file);
            },
            where);
    }

    void enterPassword(const std::wstring& text, int button,
                       std::source_location where = std::source_location::current())
    {
        robot.dialog(
            passwordCaption,
            [=](ModalWindow& dialog)
            {
                dialog.type(password, text);
                dialog.type(passwordAgain, text);
                dialog.press(button);
            },
            Owner::dialog, where);
    }

    static std::filesystem::path certificateFile(const std::wstring& filePassword = {})
    {
        const auto file = document(L"certificate.p12");
        authority().issue(L"new.example", 0x11, file, filePassword);
        return file;
    }

    void expectInstalled()
    {
        EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"11", Authority::name, L"new.example")));
    }
};

TEST_F(ImportCertificate, installsItAndListsIt)
{
    import(certificateFile());
    runWizard();
    expectInstalled();
}

TEST_F(ImportCertificate, isSeenInEveryView)
{
    close();
    openNode(2);
    import(certificateFile());
    runWizard();
    EXPECT_THAT(names(0), ElementsAre(L"new.example"));
    EXPECT_THAT(names(1), ElementsAre(L"new.example"));
}

TEST_F(ImportCertificate, needsAFileThatIsThere)
{
    for (const auto& path : {document(L"missing.p12"), std::filesystem::path(L" ")})
    {
        import(path);
        pageError(L"File could not be found!");
        lookAndCancel(CertificateWizard::certificateFileCaption, [&](WizardWindow& wizard)
                      { EXPECT_EQ(path.wstring(), wizard.page().text(CertificateWizard::file)); });
        runWizard();
    }
    EXPECT_FALSE(std::filesystem::exists(keyStore()));
}

TEST_F(ImportCertificate, needsTheNameOfAFile)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toCertificateFile(wizard);
               wizard.press(WizardWindow::finish);
           });
    pageError(L"File could not be found!");
    lookAndCancel(CertificateWizard::certificateFileCaption, [](WizardWindow&) {});
    runWizard();
}

TEST_F(ImportCertificate, ofAnotherKindOfFileIsRefusedAndLeavesTheWizardOpen)
{
    const auto file = document(L"letter.p12");
    ServerFiles::write(file, "Dear Sir or Madam");
    import(file);
    wizardError(L"The file \"" + file.wstring() +
                L"\" is no PKCS #12 file. Please choose a file that an authority or an export made (*.pfx, *.p12).");
    wizard(CertificateWizard::certificateFileCaption,
           [&](WizardWindow& wizard)
           {
               EXPECT_EQ(file.wstring(), wizard.page().text(CertificateWizard::file));
               finishWith(wizard, certificateFile());
           });
    runWizard();
    expectInstalled();
}

TEST_F(ImportCertificate, asksForThePasswordOfTheFile)
{
    for (const wchar_t* const text : {L"secret", L"Schlüssel 密碼 \U0001F511"})
    {
        import(certificateFile(text));
        enterPassword(text, IDOK);
        runWizard();
        expectInstalled();
        view().pressDelete(L"11");
    }
}

TEST_F(ImportCertificate, staysWhereThePasswordIsNotEntered)
{
    import(certificateFile(L"secret"));
    enterPassword(L"secret", IDCANCEL);
    lookAndCancel(CertificateWizard::certificateFileCaption, [](WizardWindow& wizard)
                  { EXPECT_EQ(document(L"certificate.p12").wstring(), wizard.page().text(CertificateWizard::file)); });
    runWizard();
    EXPECT_TRUE(stored().empty());
}

TEST_F(ImportCertificate, asksAgainAfterAWrongPassword)
{
    const auto file = certificateFile(L"secret");
    import(file);
    enterPassword(L"Secret", IDOK);
    wizardError(L"The password does not open the file \"" + file.wstring() + L"\".");
    wizard(CertificateWizard::certificateFileCaption, [](WizardWindow& wizard) { wizard.press(WizardWindow::finish); });
    enterPassword(L"secret", IDOK);
    runWizard();
    expectInstalled();
}

TEST_F(ImportCertificate, wantsThePasswordTwiceTheSame)
{
    import(certificateFile(L"secret"));
    robot.dialog(
        passwordCaption,
        [](ModalWindow& dialog)
        {
            dialog.type(password, L"secret");
            dialog.press(IDOK);
        },
        Owner::dialog);
    robot.message({.text = L"Passwords don't match.",
                   .caption = L"Validation Error",
                   .icon = MB_ICONERROR,
                   .owner = Owner::dialog});
    enterPassword(L"secret", IDOK);
    runWizard();
    expectInstalled();
}

TEST_F(ImportCertificate, showsTheWaitCursorButNotWhileThePasswordIsEntered)
{
    std::vector<HCURSOR> cursors;
    const HCURSOR wait = LoadCursorW(nullptr, IDC_WAIT);
    const auto file = certificateFile(L"secret");
    {
        ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
            [&](HCURSOR shape)
            {
                cursors.push_back(shape);
                return cursor.callThrough(shape);
            });
        import(file);
        robot.dialog(
            passwordCaption,
            [&](ModalWindow& dialog)
            {
                EXPECT_EQ(2u, cursors.size()) << "it is taken back before the question";
                dialog.type(password, L"secret");
                dialog.type(passwordAgain, L"secret");
                dialog.press(IDOK);
            },
            Owner::dialog);
        runWizard();
    }
    ASSERT_GE(cursors.size(), 4u);
    EXPECT_EQ(wait, cursors[0]);
    EXPECT_NE(wait, cursors[1]);
    EXPECT_EQ(wait, cursors[2]);
    EXPECT_NE(wait, cursors[3]);
}

TEST_F(ImportCertificate, browsesForCertificateFiles)
{
    const auto file = certificateFile();
    ImportSpy<"GetOpenFileNameW", decltype(GetOpenFileNameW)> dialog(
        [&](LPOPENFILENAMEW request)
        {
            EXPECT_STREQ(L"Certificate files (*.pfx;*.p12)", request->lpstrFilter);
            const wchar_t* const pattern = request->lpstrFilter + std::wcslen(request->lpstrFilter) + 1;
            EXPECT_STREQ(L"*.pfx;*.p12", pattern);
            EXPECT_EQ(L'\0', pattern[std::wcslen(pattern) + 1]);
            EXPECT_TRUE(request->Flags & OFN_FILEMUSTEXIST);
            return dialog.callThrough(request);
        });
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toCertificateFile(wizard);
               wizard.pressOnPage(CertificateWizard::browse);
           });
    robot.dialog(
        FileDialog::caption, [&](ModalWindow& window) { FileDialog(window).choose(file.wstring()); }, Owner::dialog);
    wizard(CertificateWizard::certificateFileCaption,
           [&](WizardWindow& wizard)
           {
               EXPECT_EQ(file.wstring(), wizard.page().text(CertificateWizard::file));
               wizard.press(WizardWindow::finish);
           });
    runWizard();
    EXPECT_EQ(1, dialog.calls());
    expectInstalled();
}

// Without the password that it was written with, the file would ask for one.
TEST_F(ImportCertificate, takesWhatAnExportWrote)
{
    import(certificateFile());
    runWizard();
    const auto exported = document(L"exported.p12");
    robot.dialog(L"Export Certificate", [&](ModalWindow& window) { FileDialog(window).choose(exported.wstring()); });
    view().runCommand(L"11", exportCommand);
    view().pressDelete(L"11");
    EXPECT_TRUE(names().empty());
    import(exported);
    runWizard();
    expectInstalled();
}

} // namespace
} // namespace Acceptance
