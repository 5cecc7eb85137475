#include "certificates/CertificatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

constexpr wchar_t fieldIsMissing[] = L"All fields are required";

// The page that asks whom a certificate is for, on the way to a request, which leads on to another page.
class CertificateSubjectPage : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        open();
    }

    // The wizard comes up, the page is filled with these, and Next is pressed.
    void enter(const SubjectEntries& entries, std::source_location where = std::source_location::current())
    {
        wizard(
            CertificateWizard::typeCaption,
            [entries](WizardWindow& wizard)
            {
                toSubjectOfRequest(wizard);
                ModalWindow page = wizard.page();
                typeSubject(page, entries);
                wizard.press(WizardWindow::next);
            },
            where);
    }

    static SubjectEntries entriesWith(int control, const std::wstring& text)
    {
        SubjectEntries changed = entries();
        for (SubjectEntry& entry : changed)
        {
            if (entry.control == control)
            {
                entry.text = text;
            }
        }
        return changed;
    }

    static std::vector<std::wstring> textsOf(const SubjectEntries& entries)
    {
        std::vector<std::wstring> texts;
        for (const SubjectEntry& entry : entries)
        {
            texts.push_back(entry.text);
        }
        return texts;
    }

    // Opens the wizard, walks to the page and gives what its fields have.
    std::vector<std::wstring> shownOnEntry()
    {
        std::vector<std::wstring> shown;
        lookAndCancel(CertificateWizard::typeCaption,
                      [&](WizardWindow& wizard)
                      {
                          wizard.click(WizardWindow::next);
                          shown = texts(wizard.page(), entries());
                      });
        runWizard();
        return shown;
    }
};

TEST_F(CertificateSubjectPage, needsEveryField)
{
    for (const SubjectEntry& entry : entries())
    {
        enter(entriesWith(entry.control, L""));
        pageError(fieldIsMissing);
        lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow&) {});
        runWizard();
        EXPECT_FALSE(std::filesystem::exists(ServerFiles::configuration())) << entry.control;
    }
}

TEST_F(CertificateSubjectPage, countsAFieldOfBlanksAsEmpty)
{
    for (const wchar_t* const blanks : {L" ", L"   ", L"\u00A0\u3000"})
    {
        enter(entriesWith(307, blanks));
        pageError(fieldIsMissing);
        lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow&) {});
        runWizard();
    }
}

TEST_F(CertificateSubjectPage, asksForEveryFieldOnFinishToo)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               wizard.click(WizardWindow::next);
               wizard.press(WizardWindow::finish);
           });
    pageError(fieldIsMissing);
    lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow&) {});
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(keyStore()));
}

TEST_F(CertificateSubjectPage, remembersTheValuesUnderTheirKeys)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.press(IDCANCEL);
           });
    runWizard();
    EXPECT_EQ(textsOf(entries()), remembered());
    EXPECT_FALSE(std::filesystem::exists(keyStore())) << "they are stored before anything is made";
}

TEST_F(CertificateSubjectPage, remembersThemWithoutTheBlanksAroundThem)
{
    SubjectEntries blank = entries();
    for (SubjectEntry& entry : blank)
    {
        // The country has room for no blanks.
        if (entry.control != CertificateWizard::country)
        {
            entry.text = L" \u3000" + entry.text + L"\u00A0 ";
        }
    }
    wizard(CertificateWizard::typeCaption,
           [&](WizardWindow& wizard)
           {
               toSubjectOfRequest(wizard);
               ModalWindow page = wizard.page();
               typeSubject(page, blank);
               wizard.click(WizardWindow::next);
               wizard.press(IDCANCEL);
           });
    runWizard();
    EXPECT_EQ(textsOf(entries()), remembered());
}

TEST_F(CertificateSubjectPage, showsTheNextTimeWhatWasEntered)
{
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.press(IDCANCEL);
           });
    runWizard();
    EXPECT_EQ(textsOf(entries()), shownOnEntry());
}

TEST_F(CertificateSubjectPage, startsEmptyWithoutAConfigurationFile)
{
    EXPECT_EQ(std::vector<std::wstring>(9), shownOnEntry());
    EXPECT_FALSE(std::filesystem::exists(ServerFiles::configuration()));
}

TEST_F(CertificateSubjectPage, isFilledByTheSettingsThatAreThere)
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"CertInfo-City\" value=\"Rennes\"/>\r\n"));
    std::vector<std::wstring> expected(9);
    expected[6] = L"Rennes";
    EXPECT_EQ(expected, shownOnEntry());
}

TEST_F(CertificateSubjectPage, leavesTheOtherSettingsAlone)
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"ServerPort\" value=\"4711\"/>\r\n"));
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               toRequestFile(wizard);
               wizard.press(IDCANCEL);
           });
    runWizard();
    EXPECT_EQ(L"4711", ServerFiles::setting(L"ServerPort"));
    EXPECT_EQ(textsOf(entries()), remembered());
}

// All nine are stored or none.
TEST_F(CertificateSubjectPage, storesNothingWhereOneTextCannotBeStored)
{
    enter(entriesWith(308, L"a@example.com\uFFFE"));
    robot.messageThat(
        [](const MessageBoxSeen& box)
        {
            EXPECT_EQ(L"Import Certificate", box.caption);
            EXPECT_NE(std::wstring::npos, box.text.find(L"CertInfo-Email")) << "names the setting";
        });
    lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow&) {});
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(ServerFiles::configuration()));
}

TEST_F(CertificateSubjectPage, ofADamagedConfigurationFileSaysSoAndStartsEmpty)
{
    const std::string damaged = "<configuration><appSettings>";
    ServerFiles::write(ServerFiles::configuration(), damaged);
    const auto refused = [](const MessageBoxSeen& box)
    {
        EXPECT_EQ(L"Import Certificate", box.caption);
        EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
        EXPECT_EQ(Owner::none, box.owner);
        EXPECT_NE(std::wstring::npos, box.text.find(ServerFiles::configuration().wstring())) << "names the file";
    };
    wizard(CertificateWizard::typeCaption, [](WizardWindow& wizard) { wizard.press(WizardWindow::next); });
    robot.messageThat(refused);
    wizard(CertificateWizard::subjectCaption,
           [](WizardWindow& wizard)
           {
               EXPECT_EQ(std::vector<std::wstring>(9), texts(wizard.page(), entries()));
               ModalWindow page = wizard.page();
               typeSubject(page, entries());
               wizard.press(WizardWindow::finish);
           });
    robot.messageThat(refused);
    lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow& wizard)
                  { EXPECT_EQ(textsOf(entries()), texts(wizard.page(), entries())) << "what was entered is kept"; });
    runWizard();
    EXPECT_EQ(damaged, ServerFiles::read(ServerFiles::configuration()));
    EXPECT_FALSE(std::filesystem::exists(keyStore())) << "nothing is made that could not be remembered";
}

} // namespace
} // namespace Acceptance
