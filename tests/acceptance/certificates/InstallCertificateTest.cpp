#include "certificates/CertificatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

constexpr int back = WizardWindow::back;
constexpr int next = WizardWindow::next;
constexpr int finish = WizardWindow::finish;

// The ways through the wizard.
class InstallCertificate : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        openNode();
    }
};

TEST_F(InstallCertificate, goesFromASelfSignedOneToWhomItIsFor)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      EXPECT_TRUE(wizard.page().checked(CertificateWizard::selfSigned));
                      EXPECT_THAT(wizard.buttons(), ElementsAre(next, IDCANCEL));
                      wizard.click(next);
                      EXPECT_EQ(CertificateWizard::subjectCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, finish, IDCANCEL));
                  });
    runWizard();
}

TEST_F(InstallCertificate, goesFromAnAuthorityToWhatItIsToDo)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      toRequestOperation(wizard);
                      EXPECT_EQ(CertificateWizard::operationCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, next, IDCANCEL));
                  });
    runWizard();
}

TEST_F(InstallCertificate, goesFromARequestToWhomItIsForAndToItsFile)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      toSubjectOfRequest(wizard);
                      EXPECT_EQ(CertificateWizard::subjectCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, next, IDCANCEL));
                      ModalWindow page = wizard.page();
                      typeSubject(page, entries());
                      wizard.click(next);
                      EXPECT_EQ(CertificateWizard::requestFileCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, finish, IDCANCEL));
                  });
    runWizard();
}

TEST_F(InstallCertificate, skipsWhomItIsForWhereTheAuthorityHasAnswered)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      toCertificateFile(wizard);
                      EXPECT_EQ(CertificateWizard::certificateFileCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, finish, IDCANCEL));
                  });
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(ServerFiles::configuration()));
}

TEST_F(InstallCertificate, goesBackTheWayThatOneCameAndKeepsWhatWasEntered)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      // Self-signed: past the second page, both ways.
                      wizard.click(next);
                      wizard.page().type(CertificateWizard::organization, L"typed");
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::typeCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(next, IDCANCEL));

                      // By an authority that has answered.
                      toCertificateFile(wizard);
                      wizard.page().type(CertificateWizard::file, L"C:\\typed.p12");
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::operationCaption, wizard.caption());
                      EXPECT_TRUE(wizard.page().checked(CertificateWizard::processAnswer));
                      wizard.click(next);
                      EXPECT_EQ(L"C:\\typed.p12", wizard.page().text(CertificateWizard::file));
                      wizard.click(back);

                      // By an authority that is asked.
                      wizard.page().setChecked(CertificateWizard::prepareRequest, true);
                      wizard.click(next);
                      EXPECT_EQ(L"typed", wizard.page().text(CertificateWizard::organization));
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, next, IDCANCEL));
                      ModalWindow page = wizard.page();
                      typeSubject(page, entries());
                      wizard.click(next);
                      wizard.page().type(CertificateWizard::file, L"C:\\typed.txt");
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::subjectCaption, wizard.caption());
                      EXPECT_EQ(L"render.example.com", wizard.page().text(CertificateWizard::domain));
                      wizard.click(next);
                      EXPECT_EQ(L"C:\\typed.txt", wizard.page().text(CertificateWizard::file));
                      wizard.click(back);
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::operationCaption, wizard.caption());
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::typeCaption, wizard.caption());
                      EXPECT_TRUE(wizard.page().checked(CertificateWizard::issuedByAuthority));
                  });
    runWizard();
}

// Finish stands where Next was as soon as the kind is another.
TEST_F(InstallCertificate, offersFinishAfterTheKindWasChanged)
{
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      toSubjectOfRequest(wizard);
                      wizard.click(back);
                      wizard.click(back);
                      wizard.page().setChecked(CertificateWizard::selfSigned, true);
                      wizard.click(next);
                      EXPECT_EQ(CertificateWizard::subjectCaption, wizard.caption());
                      EXPECT_THAT(wizard.buttons(), ElementsAre(back, finish, IDCANCEL));
                      wizard.click(back);
                      EXPECT_EQ(CertificateWizard::typeCaption, wizard.caption());
                  });
    runWizard();
}

TEST_F(InstallCertificate, cancelledStoresNothing)
{
    recorder.forgetCalls();
    lookAndCancel(CertificateWizard::typeCaption,
                  [](WizardWindow& wizard)
                  {
                      wizard.click(next);
                      ModalWindow page = wizard.page();
                      typeSubject(page, entries());
                  });
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(keyStore()));
    EXPECT_FALSE(std::filesystem::exists(ServerFiles::configuration()));
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty()) << "the list is not read anew";
}

TEST_F(InstallCertificate, cancelsByItsCross)
{
    robot.dialog(CertificateWizard::typeCaption, [](ModalWindow& window) { window.close(); });
    runWizard();
    EXPECT_FALSE(std::filesystem::exists(keyStore()));
}

} // namespace
} // namespace Acceptance
