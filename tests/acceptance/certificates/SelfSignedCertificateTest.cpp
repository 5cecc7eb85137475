#include "certificates/CertificatesTest.h"
#include "kit/ImportSpy.h"

#include <brimlow/security/CertStore.h>

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class SelfSignedCertificate : public CertificatesTest
{
  protected:
    // The wizard comes up and goes all the way with these.
    void create(const SubjectEntries& entries)
    {
        wizard(CertificateWizard::typeCaption,
               [entries](WizardWindow& wizard)
               {
                   wizard.click(WizardWindow::next);
                   ModalWindow page = wizard.page();
                   typeSubject(page, entries);
                   wizard.press(WizardWindow::finish);
               });
        runWizard();
    }

    // What another program finds in the certificate at that place.
    static Subject subjectStored(unsigned index)
    {
        const auto file = document(L"stored.p12");
        const auto store = Security::CertStore::getCertStoreInstance();
        store->open(true);
        store->exportPKCS12(index, file.wstring());
        return subjectOfFile(file);
    }

    static Subject expectedSubject()
    {
        Subject subject;
        for (const SubjectEntry& entry : entries())
        {
            subject[entry.shortName] = entry.text;
        }
        return subject;
    }
};

TEST_F(SelfSignedCertificate, isMadeOfWhatWasEnteredAndListed)
{
    installCertificates({L"one.example"});
    openNode();
    create(entries());
    EXPECT_EQ(expectedSubject(), subjectStored(1));
    ASSERT_EQ(2u, view().rows().size());
    EXPECT_EQ(L"render.example.com", view().rows()[1].at(1));
    EXPECT_EQ(L"render.example.com", view().rows()[1].at(2));
    EXPECT_EQ(stored(), view().rows());
}

TEST_F(SelfSignedCertificate, isSeenInEveryView)
{
    openNode(2);
    create(entries());
    EXPECT_THAT(names(0), ElementsAre(L"render.example.com"));
    EXPECT_THAT(names(1), ElementsAre(L"render.example.com"));
}

TEST_F(SelfSignedCertificate, isMadeWhereAnotherNodeIsShown)
{
    open();
    view().select(L"Users");
    const auto rows = view().rows();
    create(entries());
    EXPECT_EQ(rows, view().rows());
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"render.example.com"));
}

TEST_F(SelfSignedCertificate, showsTheWaitCursorWhileItsKeyIsMade)
{
    open();
    view().select(L"Users");
    std::vector<HCURSOR> cursors;
    {
        ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
            [&](HCURSOR shape)
            {
                cursors.push_back(shape);
                return cursor.callThrough(shape);
            });
        create(entries());
    }
    // Once for the key, once for the list that is read anew; each gives back what was there.
    const HCURSOR wait = LoadCursorW(nullptr, IDC_WAIT);
    ASSERT_EQ(4u, cursors.size());
    EXPECT_EQ(wait, cursors[0]);
    EXPECT_NE(wait, cursors[1]);
    EXPECT_EQ(wait, cursors[2]);
    EXPECT_NE(wait, cursors[3]);
}

// The library says what a certificate cannot hold; by then the values are remembered.
TEST_F(SelfSignedCertificate, thatCannotBeMadeLeavesTheWizardOpen)
{
    openNode();
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               wizard.click(WizardWindow::next);
               ModalWindow page = wizard.page();
               typeSubject(page, entries());
               page.type(CertificateWizard::country, L"F1");
               wizard.press(WizardWindow::finish);
           });
    wizardError(L"\"Country Code\" must be two letters from A to Z, such as US or FR.");
    wizard(CertificateWizard::subjectCaption,
           [](WizardWindow& wizard)
           {
               ModalWindow page = wizard.page();
               EXPECT_EQ(L"F1", page.text(CertificateWizard::country));
               EXPECT_EQ(L"render.example.com", page.text(CertificateWizard::domain));
               EXPECT_TRUE(stored().empty());
               EXPECT_EQ(L"F1", ServerFiles::setting(L"CertInfo-Country"));
               page.type(CertificateWizard::country, L"FR");
               wizard.press(WizardWindow::finish);
           });
    runWizard();
    EXPECT_THAT(names(), ElementsAre(L"render.example.com"));
}

// The box has no owner; still, Finish cannot be pressed a second time behind it.
TEST_F(SelfSignedCertificate, thatCannotBeMadeLocksTheWizardUntilItsMessageIsRead)
{
    openNode();
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               wizard.click(WizardWindow::next);
               ModalWindow page = wizard.page();
               typeSubject(page, entries());
               page.type(CertificateWizard::country, L"F1");
               wizard.press(WizardWindow::finish);
           });
    robot.messageThat(
        [](const MessageBoxSeen& box)
        {
            EXPECT_EQ(Owner::none, box.owner);
            const HWND sheet = FindWindowW(nullptr, CertificateWizard::subjectCaption);
            ASSERT_NE(nullptr, sheet);
            EXPECT_FALSE(IsWindowEnabled(sheet));
        });
    lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow&) {});
    runWizard();
}

} // namespace
} // namespace Acceptance
