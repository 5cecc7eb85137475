#include "frame/BareSnapIn.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class AccessList : public TemplatesTest
{
  protected:
    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Invoices");
    }

    static std::wstring users() { return nodeOf(L"Invoices\\Users"); }
    static std::wstring noUser(const std::wstring& name) { return L"There is no user \"" + name + L"\"."; }

    // The lists of the applications keep the name.
    static void removeUser(const std::wstring& name)
    {
        Tessaro::UserCollection accounts;
        accounts.deleteUser(accounts.getUserByName(name));
    }

    // The pictures of the rows, as the snap-in gives them.
    static std::vector<int> images()
    {
        BareSnapIn snapIn;
        const auto bare = snapIn.makeView();
        const SCOPEDATAITEM node = snapIn.node(users());
        EXPECT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
        std::vector<int> images;
        for (const RESULTDATAITEM& row : bare->console.results.inserted)
        {
            images.push_back(row.nImage);
        }
        return images;
    }
};

TEST_F(AccessList, isANodeOfEveryApplication)
{
    addApplication(L"Letters");
    open();
    EXPECT_THAT(view().children(nodeOf(L"Invoices")), ElementsAre(L"Users"));
    EXPECT_THAT(view().children(nodeOf(L"Letters")), ElementsAre(L"Users"));
    EXPECT_THAT(view().children(users()), IsEmpty());
}

TEST_F(AccessList, hasOneColumnAndDoesNotSort)
{
    openAt(users());
    EXPECT_THAT(view().columns(), ElementsAre(ConsoleView::Column{L"Name", 150}));
    EXPECT_FALSE(view().view().sortable());
    EXPECT_EQ(1u, recorder.calls(L"IResultData::ModifyViewStyle", L"add=4, remove=0").size()) << "MMC_NOSORTHEADER";
}

TEST_F(AccessList, showsTheUsersInTheOrderInWhichTheyWereGrantedIt)
{
    for (const wchar_t* const name : {L"zoe", L"adam", L"\u00C9mile"})
    {
        addUser(name);
        grant(L"Invoices", name);
    }
    openAt(users());
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest"), ElementsAre(L"zoe"), ElementsAre(L"adam"),
                                           ElementsAre(L"\u00C9mile")));
}

TEST_F(AccessList, hasNothingInFurtherColumns)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(users());
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    ASSERT_EQ(1u, bare->console.results.inserted.size());
    const MMC_COOKIE guest = bare->console.results.inserted.front().lParam;
    EXPECT_EQ(L"Guest", bare->cell(guest, 0));
    EXPECT_EQ(L"", bare->cell(guest, 1));
    EXPECT_EQ(L"", bare->cell(guest, 7));
}

TEST_F(AccessList, showsWhetherAnAccountIsEnabled)
{
    addUser(L"adam");
    addUser(L"zoe", false);
    grant(L"Invoices", L"adam");
    grant(L"Invoices", L"zoe");
    Tessaro::UserCollection().setGuestEnabled(true);
    EXPECT_THAT(images(), ElementsAre(17, 17, 23));
}

TEST_F(AccessList, showsWhetherTheGuestAccountIsEnabled)
{
    Tessaro::UserCollection().setGuestEnabled(true);
    EXPECT_THAT(images(), ElementsAre(17));
    Tessaro::UserCollection().setGuestEnabled(false);
    EXPECT_THAT(images(), ElementsAre(23));
}

// Anybody can have an account of almost that name.
TEST_F(AccessList, takesOnlyTheVeryNameForTheGuest)
{
    Tessaro::UserCollection().setGuestEnabled(true);
    addUser(L"guest", false);
    grant(L"Invoices", L"guest");
    EXPECT_THAT(images(), ElementsAre(17, 23));
}

TEST_F(AccessList, isReadAnewWheneverItIsShown)
{
    openAt(users());
    addUser(L"adam");
    grant(L"Invoices", L"adam");
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
    view().select(L"Users");
    view().select(users());
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"adam"));
}

TEST_F(AccessList, reportsEachNameWithoutAnAccountWhenTheConsoleIsOpened)
{
    grant(L"Invoices", L"gone");
    grant(L"Invoices", L"gone too");
    error(noUser(L"gone"));
    error(noUser(L"gone too"));
    open();
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"Guest", L"gone", L"gone too"));
}

TEST_F(AccessList, reportsANameWithoutAnAccountOnceForEachTimeThatItIsReadAndListsTheOthers)
{
    for (const wchar_t* const name : {L"adam", L"max", L"zoe"})
    {
        addUser(name);
        grant(L"Invoices", name);
    }
    open();
    removeUser(L"max");
    error(noUser(L"max"));
    view().select(users());
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"adam", L"zoe"));
    view().select(L"Users");
    error(noUser(L"max"));
    view().select(users());
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"adam", L"zoe"));
    EXPECT_THAT(storedUsers(L"Invoices"), ElementsAre(L"Guest", L"adam", L"max", L"zoe")) << "the list is not changed";
}

// Proves: the id is a position, so that this node shows its neighbour's users once an application before its own was
// removed.
TEST_F(AccessList, showsTheNextApplicationsUsersOnceAnEarlierOneWasRemovedElsewhere)
{
    addUser(L"adam");
    addApplications({L"Letters", L"Orders"});
    grant(L"Orders", L"adam");
    open();
    const auto node = view().node(nodeOf(L"Letters\\Users"));
    removeApplication(L"Invoices");
    view().view().selectNode(node);
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"adam"));
}

TEST_F(AccessList, reportsAnApplicationThatWasRemovedElsewhereAndListsNobody)
{
    open();
    const auto node = view().node(users());
    removeApplication(L"Invoices");
    error(L"The application is no longer there. Please refresh the list.");
    view().view().selectNode(node);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AccessList, letsUsersBeDeletedAndNothingElse)
{
    openAt(users());
    constexpr MMC_CONSOLE_VERB verbs[] = {MMC_VERB_COPY,    MMC_VERB_PASTE, MMC_VERB_DELETE, MMC_VERB_RENAME,
                                          MMC_VERB_REFRESH, MMC_VERB_PRINT, MMC_VERB_CUT,    MMC_VERB_PROPERTIES};
    for (const MMC_CONSOLE_VERB verb : verbs)
    {
        EXPECT_FALSE(view().view().verb(verb).enabled) << verb;
    }
    view().view().selectRows({0});
    for (const MMC_CONSOLE_VERB verb : verbs)
    {
        EXPECT_EQ(verb == MMC_VERB_DELETE, view().view().verb(verb).enabled) << verb;
    }
}

TEST_F(AccessList, doesNothingOnADoubleClick)
{
    openAt(users());
    view().doubleClick(L"Guest");
    recorder.takeComplaints(); // a row is no node: the console refuses to select it
    EXPECT_EQ(users(), view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
}

} // namespace
} // namespace Acceptance
