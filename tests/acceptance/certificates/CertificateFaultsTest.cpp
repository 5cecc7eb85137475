#include "certificates/CertificatesTest.h"
#include "kit/FileDialog.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

// A key store that cannot be used as it should be.
class CertificateFaults : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        installCertificates({L"one.example"});
    }

    static std::string damage()
    {
        std::string content = ServerFiles::read(keyStore());
        content.resize(content.size() / 2);
        ServerFiles::write(keyStore(), content);
        return content;
    }
    static std::wstring damagedText()
    {
        return L"The key store \"" + keyStore().wstring() + L"\" is damaged. Please restore it from a backup.";
    }
};

TEST_F(CertificateFaults, aDamagedStoreIsReportedAndListedAsEmpty)
{
    const std::string before = ServerFiles::read(keyStore());
    damage();
    open();
    error(damagedText());
    view().select(node);
    EXPECT_TRUE(view().rows().empty());
    EXPECT_EQ(3u, view().columns().size());
    ServerFiles::write(keyStore(), before);
    view().select(L"Users");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"one.example"));
}

// The store is read when the list is shown, not before.
TEST_F(CertificateFaults, aDamagedStoreDoesNotKeepThePlugInFromLoading)
{
    damage();
    open();
    view().select(L"Users");
}

TEST_F(CertificateFaults, aRefusedUninstallIsReportedAndLeavesTheList)
{
    openNode();
    const std::string damaged = damage();
    error(damagedText());
    view().pressDelete(L"01");
    EXPECT_THAT(names(), ElementsAre(L"one.example"));
    EXPECT_EQ(damaged, ServerFiles::read(keyStore()));
}

TEST_F(CertificateFaults, aRefusedExportIsReported)
{
    openNode();
    const auto file = document(L"exported.p12");
    damage();
    robot.dialog(L"Export Certificate", [&](ModalWindow& window) { FileDialog(window).choose(file.wstring()); });
    error(damagedText());
    view().runCommand(L"01", exportCommand);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(CertificateFaults, aRefusedCertificateLeavesTheWizardOpenAndTheStoreAsItIs)
{
    openNode();
    const std::string damaged = damage();
    wizard(CertificateWizard::typeCaption,
           [](WizardWindow& wizard)
           {
               wizard.click(WizardWindow::next);
               ModalWindow page = wizard.page();
               typeSubject(page, entries());
               wizard.press(WizardWindow::finish);
           });
    wizardError(damagedText());
    lookAndCancel(CertificateWizard::subjectCaption, [](WizardWindow& wizard)
                  { EXPECT_EQ(L"render.example.com", wizard.page().text(CertificateWizard::domain)); });
    runWizard();
    EXPECT_EQ(damaged, ServerFiles::read(keyStore()));
    EXPECT_THAT(names(), ElementsAre(L"one.example")) << "a cancelled wizard changes no list";
}

} // namespace
} // namespace Acceptance
