#include "certificates/CertificatesTest.h"
#include "frame/BareSnapIn.h"

namespace Acceptance
{
namespace
{

constexpr int issuer = 311;
constexpr int subject = 312;
constexpr int serialNumber = 313;

class CertificateProperties : public CertificatesTest
{
  protected:
    void expectDialog(const std::wstring& number, const std::wstring& name,
                      std::source_location where = std::source_location::current())
    {
        robot.dialog(
            L"Certificate",
            [=](ModalWindow& dialog)
            {
                EXPECT_EQ(Authority::name, dialog.text(issuer));
                EXPECT_EQ(name, dialog.text(subject));
                EXPECT_EQ(number, dialog.text(serialNumber));
                EXPECT_EQ(std::vector<int>{IDOK}, dialog.buttons());
                dialog.press(IDOK);
            },
            Owner::frame, where);
    }
};

TEST_F(CertificateProperties, areShownByTheCommand)
{
    installCertificates({L"one.example", L"two.example"});
    openNode();
    expectDialog(L"02", L"two.example");
    view().runCommand(L"02", properties);
}

// Proves: CertificateItem on a double-click.
TEST_F(CertificateProperties, areShownByADoubleClick)
{
    installCertificates({L"one.example", L"two.example"});
    openNode();
    expectDialog(L"01", L"one.example");
    view().doubleClick(L"01");
}

TEST_F(CertificateProperties, areThoseOfTheListWhileTheStoreChanges)
{
    installCertificates({L"one.example", L"two.example"});
    openNode();
    remove(1);
    expectDialog(L"02", L"two.example");
    view().doubleClick(L"02");
}

// Another console in this process reads the store anew.
TEST_F(CertificateProperties, ofOneThatIsNotThereAnyMoreAreAnError)
{
    installCertificates({L"one.example"});
    BareSnapIn first;
    const auto view = first.makeView();
    const SCOPEDATAITEM parent = first.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(first.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
    remove(0);
    BareSnapIn second;
    const auto otherView = second.makeView();
    const SCOPEDATAITEM otherParent = second.node(node);
    ASSERT_EQ(S_OK,
              otherView->component->Notify(second.object(otherParent.lParam).Get(), MMCN_SHOW, TRUE, otherParent.ID));

    const auto row = view->object(view->console.results.rows.front().lParam);
    error(L"An object that must be there is missing.");
    EXPECT_EQ(E_FAIL, view->component->Notify(row.Get(), MMCN_DBLCLICK, 0, 0));
}

} // namespace
} // namespace Acceptance
