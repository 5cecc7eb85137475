#include "users/UsersTest.h"

#include "frame/BareSnapIn.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace Acceptance
{
namespace
{

// Rows are made of what is stored, and only when that is another state than the one that is listed.
class KeptRows : public UsersTest
{
  protected:
    void SetUp() override
    {
        UsersTest::SetUp();
        addUsers({L"alice", L"bob1"});
        setAccess(L"Invoices", {L"Guest", L"alice"});
    }

    // Shows the node in the view and leaves it again; the cookies of its rows.
    static std::vector<MMC_COOKIE> show(BareSnapIn& snapIn, const SCOPEDATAITEM& parent)
    {
        const auto object = snapIn.object(parent.lParam);
        const auto view = snapIn.makeView();
        EXPECT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_SHOW, TRUE, parent.ID));
        std::vector<MMC_COOKIE> cookies;
        for (const RESULTDATAITEM& row : view->console.results.rows)
        {
            cookies.push_back(row.lParam);
        }
        EXPECT_EQ(S_OK, view->component->Notify(object.Get(), MMCN_SHOW, FALSE, parent.ID));
        return cookies;
    }

    // Whether the rows are the same ones where nothing has changed, and others once it has.
    void expectKept(const std::wstring& path, std::size_t rows)
    {
        BareSnapIn snapIn;
        const SCOPEDATAITEM parent = snapIn.node(path);
        const auto first = show(snapIn, parent);
        EXPECT_EQ(rows, first.size());
        EXPECT_EQ(first, show(snapIn, parent));
        setGuest(!guestEnabled());
        const auto changed = show(snapIn, parent);
        EXPECT_EQ(rows, changed.size());
        EXPECT_NE(first, changed);
        EXPECT_EQ(changed, show(snapIn, parent));
    }
};

TEST_F(KeptRows, ofUsers)
{
    expectKept(node, 3);
}

TEST_F(KeptRows, ofUsersWhoStayedAsTheyWere)
{
    addUsers({L"carol", L"dave"});
    BareSnapIn snapIn;
    const SCOPEDATAITEM parent = snapIn.node(node);
    const auto before = show(snapIn, parent);
    ASSERT_EQ(5u, before.size());
    Tessaro::User carol = storedUser(L"carol");
    carol.setEnable(false);
    Tessaro::UserCollection().updateUser(carol);
    Tessaro::UserCollection().deleteUser(storedUser(L"alice"));
    addUsers({L"erin"});
    const auto after = show(snapIn, parent);
    ASSERT_EQ(5u, after.size());
    EXPECT_EQ(before[2], after[1]) << "bob1";
    EXPECT_NE(before[3], after[2]) << "carol";
    EXPECT_EQ(before[4], after[3]) << "dave";
}

TEST_F(KeptRows, ofTheUsersOfAnApplication)
{
    expectKept(L"Server Templates\\Invoices\\Users", 2);
}

TEST_F(KeptRows, ofTemplates)
{
    addTemplate(L"Invoices", L"a.xsl");
    addTemplate(L"Invoices", L"b.xsl");
    expectKept(L"Server Templates\\Invoices", 2);
}

TEST_F(KeptRows, ofTheFilesOfAResourceFolder)
{
    addFolder(L"Invoices", L"Images");
    addFile(L"Invoices", L"Images", L"a.png");
    expectKept(L"Server Templates\\Invoices\\Images", 1);
}

// A name without an account is reported whenever the list is shown.
TEST_F(KeptRows, areNoneWhereANameOfTheListIsNoUser)
{
    grant(L"Invoices", L"nobody");
    const auto expectReport = [this] { error(L"There is no user \"nobody\"."); };
    expectReport();
    BareSnapIn snapIn;
    const SCOPEDATAITEM parent = snapIn.node(L"Server Templates\\Invoices\\Users");
    expectReport();
    const auto first = show(snapIn, parent);
    EXPECT_EQ(2u, first.size());
    expectReport();
    EXPECT_NE(first, show(snapIn, parent));
}

// A console that selects a node again may show it at once, or later, or not at all.
class RowsAfterAnEdit : public KeptRows
{
  protected:
    void SetUp() override
    {
        KeptRows::SetUp();
        m_snapIn.emplace();
        m_view = m_snapIn->makeView();
        m_parent = m_snapIn->node(node);
        m_object = m_snapIn->object(m_parent.lParam);
        ASSERT_EQ(S_OK, notifyNode(TRUE));
        frame.activate();
    }

    void TearDown() override
    {
        m_object.Reset();
        m_view.reset();
        m_snapIn.reset();
        KeptRows::TearDown();
    }

    HRESULT notifyNode(LPARAM selecting)
    {
        return m_view->component->Notify(m_object.Get(), MMCN_SHOW, selecting, m_parent.ID);
    }

    void openAlice()
    {
        const MMC_COOKIE alice = m_view->console.results.rows.at(1).lParam;
        EXPECT_EQ(S_OK, m_view->component->Notify(m_view->object(alice).Get(), MMCN_DBLCLICK, 0, 0));
    }

    void editAlice()
    {
        rename(L"zoe.z");
        openAlice();
        EXPECT_EQ(std::vector<HSCOPEITEM>{m_parent.ID}, m_view->console.selections);
        ASSERT_EQ(3u, m_view->console.results.rows.size());
        EXPECT_EQ(L"zoe.z", m_view->cell(m_view->console.results.rows.at(1).lParam, 0));
    }

    std::optional<BareSnapIn> m_snapIn;
    std::unique_ptr<BareSnapIn::View> m_view;
    SCOPEDATAITEM m_parent{};
    Microsoft::WRL::ComPtr<IDataObject> m_object;
};

TEST_F(RowsAfterAnEdit, areListedWhereTheConsoleDoesNotShowTheNode)
{
    editAlice();
}

TEST_F(RowsAfterAnEdit, haveThePictureOfWhatIsStoredNow)
{
    constexpr int enabledUser = 17;
    constexpr int disabledUser = 23;
    EXPECT_EQ(enabledUser, m_view->console.results.rows.at(1).nImage);
    switchTo(false, IDOK);
    openAlice();
    EXPECT_EQ(disabledUser, m_view->console.results.rows.at(1).nImage);
}

TEST_F(RowsAfterAnEdit, areListedOnceWhereTheConsoleShowsTheNodeAtOnce)
{
    m_view->console.onSelect = [this](HSCOPEITEM)
    {
        EXPECT_EQ(S_OK, notifyNode(FALSE));
        m_view->console.results.rows.clear();
        EXPECT_EQ(S_OK, notifyNode(TRUE));
    };
    m_view->console.results.inserted.clear();
    editAlice();
    EXPECT_EQ(3u, m_view->console.results.inserted.size());
}

} // namespace
} // namespace Acceptance
