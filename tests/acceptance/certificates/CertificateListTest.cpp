#include "certificates/CertificatesTest.h"
#include "frame/BareSnapIn.h"
#include "kit/ImportSpy.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class CertificateList : public CertificatesTest
{
};

TEST_F(CertificateList, hasThreeColumns)
{
    openNode();
    using Column = ConsoleView::Column;
    EXPECT_THAT(view().columns(),
                ElementsAre(Column{L"Serial No", 150}, Column{L"Issuer By", 100}, Column{L"Issued To", 50}));
}

TEST_F(CertificateList, isEmptyWhereNothingIsStored)
{
    openNode();
    EXPECT_TRUE(view().rows().empty());
    EXPECT_EQ(3u, view().columns().size());
    EXPECT_FALSE(std::filesystem::exists(keyStore())) << "looking makes no key store";
}

TEST_F(CertificateList, showsSerialNumberIssuerAndSubjectInTheOrderOfTheStore)
{
    installCertificates({L"zeta.example", L"alpha.example"});
    openNode();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"01", Authority::name, L"zeta.example"),
                                           ElementsAre(L"02", Authority::name, L"alpha.example")));
}

TEST_F(CertificateList, showsNamesInAnyScript)
{
    const std::wstring name = L"证书, \"شهادة\" = сертификат / \U0001F512";
    installCertificates({name});
    openNode();
    EXPECT_THAT(names(), ElementsAre(name));
}

// No console asks for it.
TEST_F(CertificateList, hasNothingInFurtherColumns)
{
    installCertificates({L"one.example"});
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
    ASSERT_EQ(1u, bare->console.results.inserted.size());
    const MMC_COOKIE row = bare->console.results.inserted.front().lParam;
    EXPECT_EQ(L"one.example", bare->cell(row, 2));
    for (const int column : {3, 4, -1, 99})
    {
        EXPECT_EQ(L"", bare->cell(row, column)) << column;
    }
}

TEST_F(CertificateList, doesNotSort)
{
    openNode();
    const auto styles = recorder.calls(L"IResultData::ModifyViewStyle");
    ASSERT_EQ(1u, styles.size());
    EXPECT_EQ(L"add=4, remove=0", styles.front().call.arguments) << "MMC_NOSORTHEADER";
    EXPECT_FALSE(view().view().sortable());
    EXPECT_FALSE(view().view().multiSelect());
}

TEST_F(CertificateList, isReadAnewWheneverItIsShown)
{
    openNode();
    installCertificates({L"one.example"});
    EXPECT_TRUE(names().empty());
    view().select(L"Users");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"one.example"));
}

// Proves: CertificateCollectionItem on the console's refresh.
TEST_F(CertificateList, isReadAnewByTheConsolesRefresh)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    const auto object = snapIn.object(parent.lParam);
    ASSERT_EQ(S_OK, bare->component->Notify(object.Get(), MMCN_SHOW, TRUE, parent.ID));
    installCertificates({L"one.example", L"two.example"});
    EXPECT_TRUE(bare->console.results.rows.empty());
    ASSERT_EQ(S_OK, bare->component->Notify(object.Get(), MMCN_REFRESH, 0, 0));
    ASSERT_EQ(2u, bare->console.results.rows.size());
    EXPECT_EQ(L"two.example", bare->cell(bare->console.results.rows[1].lParam, 2));
}

TEST_F(CertificateList, showsTheSameInEveryViewAfterItWasShownInOne)
{
    openNode(2);
    installCertificates({L"one.example"});
    view(1).select(L"Users");
    view(1).select(node);
    EXPECT_THAT(names(1), ElementsAre(L"one.example"));
    EXPECT_THAT(names(0), ElementsAre(L"one.example"));
}

TEST_F(CertificateList, tellsTheOtherViews)
{
    open();
    recorder.forgetCalls();
    view().select(node);
    EXPECT_EQ(1u, recorder.calls(L"IConsole::UpdateAllViews").size());
}

TEST_F(CertificateList, showsTheWaitCursorWhileItIsRead)
{
    open();
    std::vector<HCURSOR> cursors;
    ImportSpy<"SetCursor", decltype(SetCursor)> cursor(
        [&](HCURSOR shape)
        {
            cursors.push_back(shape);
            return cursor.callThrough(shape);
        });
    const HCURSOR before = GetCursor();
    view().select(node);
    EXPECT_THAT(cursors, ElementsAre(LoadCursorW(nullptr, IDC_WAIT), before));
}

TEST_F(CertificateList, keepsManyCertificatesInTheirOrder)
{
    std::vector<std::wstring> many;
    for (int i = 0; i < 20; ++i)
    {
        many.push_back(std::to_wstring(i) + L".example");
    }
    installCertificates(many);
    openNode();
    EXPECT_EQ(many, names());
}

} // namespace
} // namespace Acceptance
