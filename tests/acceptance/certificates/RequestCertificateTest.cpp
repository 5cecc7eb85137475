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

class RequestCertificate : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        openNode();
    }

    // The wizard comes up and goes to the page that asks for the file, where this name is typed and Finish pressed.
    void request(const std::filesystem::path& file, std::source_location where = std::source_location::current())
    {
        wizard(
            CertificateWizard::typeCaption,
            [file](WizardWindow& wizard)
            {
                toRequestFile(wizard);
                finishWith(wizard, file);
            },
            where);
    }

    static void finishWith(WizardWindow& wizard, const std::filesystem::path& file)
    {
        wizard.page().type(CertificateWizard::file, file.wstring());
        wizard.press(WizardWindow::finish);
    }

    void refusal(const std::wstring& named)
    {
        robot.messageThat(
            [named](const MessageBoxSeen& box)
            {
                EXPECT_EQ(L"Import Certificate", box.caption);
                EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
                EXPECT_EQ(Owner::none, box.owner);
                EXPECT_NE(std::wstring::npos, box.text.find(named));
            });
    }
};

TEST_F(RequestCertificate, writesWhatWasEnteredAsText)
{
    const auto file = document(L"request.txt");
    request(file);
    runWizard();
    const std::string text = ServerFiles::read(file);
    EXPECT_THAT(text, testing::StartsWith("-----BEGIN CERTIFICATE REQUEST-----"));
    Subject expected;
    for (const SubjectEntry& entry : entries())
    {
        expected[entry.shortName] = entry.text;
    }
    EXPECT_EQ(expected, subjectOfRequest(text));
    EXPECT_TRUE(names().empty()) << "nothing is installed before the authority has answered";
}

TEST_F(RequestCertificate, suggestsAFile)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      toRequestFile(wizard);
                      EXPECT_EQ(L"C:\\certrequest.txt", wizard.page().text(CertificateWizard::file));
                  });
    runWizard();
}

TEST_F(RequestCertificate, replacesAFileThatIsThere)
{
    const auto file = document(L"request.txt");
    ServerFiles::write(file, std::string(100'000, 'x'));
    request(file);
    runWizard();
    const std::string text = ServerFiles::read(file);
    EXPECT_EQ(L"FR", subjectOfRequest(text).at("C"));
    EXPECT_EQ(std::string::npos, text.find("xxxx"));
}

TEST_F(RequestCertificate, showsTheWaitCursorWhileItsKeyIsMade)
{
    std::vector<HCURSOR> cursors;
    {
        ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
            [&](HCURSOR shape)
            {
                cursors.push_back(shape);
                return cursor.callThrough(shape);
            });
        request(document(L"request.txt"));
        runWizard();
    }
    ASSERT_GE(cursors.size(), 2u);
    EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), cursors[0]);
    EXPECT_NE(cursors[0], cursors[1]);
}

// Each request leaves a key that waits: a second try writes the same request.
TEST_F(RequestCertificate, thatCannotBeWrittenLeavesTheWizardOpenAndIsWrittenElsewhere)
{
    const auto folder = document(L"request.txt");
    std::filesystem::create_directory(folder);
    const auto file = document(L"other.txt");
    std::string before;
    request(folder);
    refusal(folder.wstring());
    wizard(CertificateWizard::requestFileCaption,
           [&](WizardWindow& wizard)
           {
               EXPECT_EQ(folder.wstring(), wizard.page().text(CertificateWizard::file));
               before = ServerFiles::read(keyStore());
               finishWith(wizard, file);
           });
    runWizard();
    EXPECT_EQ(L"FR", subjectOfRequest(ServerFiles::read(file)).at("C"));
    EXPECT_EQ(before, ServerFiles::read(keyStore())) << "no second key";
}

TEST_F(RequestCertificate, isMadeAnewForOtherValues)
{
    const auto folder = document(L"request.txt");
    std::filesystem::create_directory(folder);
    const auto file = document(L"other.txt");
    request(folder);
    refusal(folder.wstring());
    wizard(CertificateWizard::requestFileCaption,
           [&](WizardWindow& wizard)
           {
               wizard.click(WizardWindow::back);
               wizard.page().type(CertificateWizard::domain, L"other.example.com");
               wizard.click(WizardWindow::next);
               finishWith(wizard, file);
           });
    runWizard();
    EXPECT_EQ(L"other.example.com", subjectOfRequest(ServerFiles::read(file)).at("CN"));
}

TEST_F(RequestCertificate, needsAFileName)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.page().type(CertificateWizard::file, L"");
               wizard.press(WizardWindow::finish);
           });
    wizardError(L"There is no name of a file to write. Please enter one.");
    lookAndCancel(CertificateWizard::requestFileCaption, [](WizardWindow&) {});
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(keyStore())) << "no key is made for it";
}

TEST_F(RequestCertificate, thatTheLibraryRefusesLeavesTheWizardOpen)
{
    const auto file = document(L"request.txt");
    wizard(CertificateWizard::typeCaption,
           [&](WizardWindow& wizard)
           {
               toSubjectOfRequest(wizard);
               ModalWindow page = wizard.page();
               typeSubject(page, entries());
               page.type(CertificateWizard::country, L"F1");
               wizard.click(WizardWindow::next);
               finishWith(wizard, file);
           });
    wizardError(L"\"Country Code\" must be two letters from A to Z, such as US or FR.");
    lookAndCancel(CertificateWizard::requestFileCaption, [](WizardWindow&) {});
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(file));
}

// The system's dialog for a file to open, though one is written.
// Proves: the file of a request is chosen as one to open, though it is written.
TEST_F(RequestCertificate, browsesForTextFiles)
{
    ServerFiles::write(document(L"old.txt"), "old");
    ImportSpy<"GetOpenFileNameW", decltype(GetOpenFileNameW)> dialog(
        [&](LPOPENFILENAMEW request)
        {
            EXPECT_STREQ(L"Text files (*.txt)", request->lpstrFilter);
            const wchar_t* const pattern = request->lpstrFilter + std::wcslen(request->lpstrFilter) + 1;
            EXPECT_STREQ(L"*.txt", pattern);
            EXPECT_EQ(L'\0', pattern[std::wcslen(pattern) + 1]);
            EXPECT_FALSE(request->Flags & OFN_FILEMUSTEXIST);
            return dialog.callThrough(request);
        });
    const auto chosen = document(L"new.txt");
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.page().type(CertificateWizard::file, document(L"old.txt").wstring());
               wizard.pressOnPage(CertificateWizard::browse);
           });
    robot.dialog(
        FileDialog::caption,
        [&](ModalWindow& window)
        {
            EXPECT_EQ(L"old.txt", FileDialog(window).name());
            FileDialog(window).choose(chosen.wstring());
        },
        Owner::dialog);
    lookAndCancel(CertificateWizard::requestFileCaption, [&](WizardWindow& wizard)
                  { EXPECT_EQ(chosen.wstring(), wizard.page().text(CertificateWizard::file)); });
    runWizard();
    EXPECT_EQ(1, dialog.calls());
}

TEST_F(RequestCertificate, keepsItsFileWhereBrowsingIsCancelled)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.pressOnPage(CertificateWizard::browse);
           });
    robot.dialog(
        FileDialog::caption, [](ModalWindow& window) { FileDialog(window).cancel(); }, Owner::dialog);
    lookAndCancel(CertificateWizard::requestFileCaption, [](WizardWindow& wizard)
                  { EXPECT_EQ(L"C:\\certrequest.txt", wizard.page().text(CertificateWizard::file)); });
    runWizard();
}

// The whole way: request, answer, import.
TEST_F(RequestCertificate, becomesACertificateOnceTheAuthorityHasAnswered)
{
    const auto file = document(L"request.txt");
    request(file);
    runWizard();
    const auto answer = document(L"answer.p12");
    authority().answer(ServerFiles::read(file), 0x2A, answer);
    wizard(CertificateWizard::typeCaption,
           [&](WizardWindow& wizard)
           {
               toCertificateFile(wizard);
               finishWith(wizard, answer);
           });
    runWizard();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"2A", Authority::name, L"render.example.com")));
}

} // namespace
} // namespace Acceptance
