#include "certificates/CertificatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class UninstallCertificate : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        installCertificates({L"one.example", L"two.example", L"three.example"});
    }

    static std::vector<std::wstring> storedNames()
    {
        std::vector<std::wstring> names;
        for (const auto& certificate : stored())
        {
            names.push_back(certificate.at(2));
        }
        return names;
    }
};

// A question would be a window that the robot does not expect.
TEST_F(UninstallCertificate, asksNothingAndTakesTheCertificateAway)
{
    openNode();
    view().runCommand(L"02", uninstall);
    EXPECT_THAT(storedNames(), ElementsAre(L"one.example", L"three.example"));
    EXPECT_THAT(names(), ElementsAre(L"one.example", L"three.example"));
}

// Proves: CertificateItem on Delete.
TEST_F(UninstallCertificate, isWhatTheConsolesDeleteDoes)
{
    openNode();
    view().pressDelete(L"03");
    EXPECT_THAT(storedNames(), ElementsAre(L"one.example", L"two.example"));
    EXPECT_THAT(names(), ElementsAre(L"one.example", L"two.example"));
}

// Each row is deleted by its index: with the former ones, the second deletion would take another certificate or none.
TEST_F(UninstallCertificate, countsTheRestAnew)
{
    openNode();
    view().pressDelete(L"01");
    EXPECT_THAT(names(), ElementsAre(L"two.example", L"three.example"));
    view().pressDelete(L"03");
    EXPECT_THAT(storedNames(), ElementsAre(L"two.example"));
    view().pressDelete(L"02");
    EXPECT_TRUE(storedNames().empty());
    EXPECT_TRUE(names().empty());
}

TEST_F(UninstallCertificate, isSeenInEveryView)
{
    openNode(2);
    view(0).pressDelete(L"01");
    EXPECT_THAT(names(0), ElementsAre(L"two.example", L"three.example"));
    EXPECT_THAT(names(1), ElementsAre(L"two.example", L"three.example"));
    view(1).pressDelete(L"02");
    EXPECT_THAT(names(0), ElementsAre(L"three.example"));
}

TEST_F(UninstallCertificate, takesTheOneThatIsShownWhereverItIsNow)
{
    openNode();
    remove(0);
    view().pressDelete(L"02");
    EXPECT_THAT(storedNames(), ElementsAre(L"three.example"));
    EXPECT_THAT(names(), ElementsAre(L"three.example"));
}

TEST_F(UninstallCertificate, ofOneThatIsGoneSaysSoAndLeavesTheList)
{
    openNode();
    remove(1);
    robot.messageThat(
        [](const MessageBoxSeen& box)
        {
            EXPECT_EQ(L"Error", box.caption);
            EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
            EXPECT_EQ(Owner::none, box.owner);
            EXPECT_NE(std::wstring::npos, box.text.find(L"\"two.example\"")) << "names the certificate";
        });
    view().pressDelete(L"02");
    EXPECT_THAT(storedNames(), ElementsAre(L"one.example", L"three.example"));
    EXPECT_THAT(names(), ElementsAre(L"one.example", L"two.example", L"three.example"));
}

} // namespace
} // namespace Acceptance
