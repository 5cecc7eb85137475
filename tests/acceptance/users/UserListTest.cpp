#include "frame/BareSnapIn.h"
#include "frame/nodeData.h"
#include "users/UsersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class UserList : public UsersTest
{
};

TEST_F(UserList, hasTwoColumnsAndDoesNotSort)
{
    openNode();
    EXPECT_THAT(view().columns(),
                ElementsAre(ConsoleView::Column{L"Username", 200}, ConsoleView::Column{L"Enabled", 100}));
    EXPECT_FALSE(view().view().sortable());
    EXPECT_EQ(1u, recorder.calls(L"IResultData::ModifyViewStyle", L"add=4, remove=0").size()) << "MMC_NOSORTHEADER";
}

TEST_F(UserList, showsTheGuestWhereNothingIsStored)
{
    openNode();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest", L"No")));
    EXPECT_FALSE(std::filesystem::exists(database())) << "looking makes no database";
}

TEST_F(UserList, showsTheGuestFirstAndTheUsersInTheOrderOfTheirAdding)
{
    addUser(L"zoe.z", true);
    addUser(L"adam", false);
    addUser(L"\u00C9mile \U0001F600", true);
    setGuest(true);
    openNode();
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Guest", L"Yes"), ElementsAre(L"zoe.z", L"Yes"),
                                           ElementsAre(L"adam", L"No"), ElementsAre(L"\u00C9mile \U0001F600", L"Yes")));
}

TEST_F(UserList, isReadAnewWheneverItIsShown)
{
    openNode();
    addUsers({L"alice"});
    EXPECT_THAT(names(), ElementsAre(L"Guest"));
    view().select(L"Log");
    view().select(node);
    EXPECT_THAT(names(), ElementsAre(L"Guest", L"alice"));
}

TEST_F(UserList, letsOnlyUsersBeDeleted)
{
    addUsers({L"alice"});
    openNode();
    EXPECT_FALSE(view().canDelete(L"Guest"));
    EXPECT_TRUE(view().canDelete(L"alice"));
    view().select(L"");
    EXPECT_FALSE(view().canDelete(node));
}

// The rows as the console is handed them.
struct Row
{
    std::wstring displayName;
    std::wstring nodeType;
    int image;

    bool operator==(const Row&) const = default;
};

TEST_F(UserList, hasAKindForTheGuestAndOneForUsersAndPicturesOfWhoIsEnabled)
{
    constexpr wchar_t guestType[] = L"{EF0A80E6-B3FF-4F37-9C1A-EC7DAF81D2F9}";
    constexpr wchar_t userType[] = L"{63F7A0A4-721E-4CD8-86F9-CCF86C53F8F9}";
    addUser(L"alice", true);
    addUser(L"bob1", false);
    for (const bool guest : {true, false})
    {
        setGuest(guest);
        BareSnapIn snapIn;
        const auto bare = snapIn.makeView();
        const SCOPEDATAITEM parent = snapIn.node(node);
        ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(parent.lParam).Get(), MMCN_SHOW, TRUE, parent.ID));
        std::vector<Row> rows;
        for (const RESULTDATAITEM& row : bare->console.results.inserted)
        {
            const auto object = bare->object(row.lParam);
            rows.push_back({displayNameOf(object.Get()), nodeTypeTextOf(object.Get()), row.nImage});
            EXPECT_EQ(L"", bare->cell(row.lParam, 2)) << "there is no further column";
        }
        EXPECT_THAT(rows, ElementsAre(Row{L"Guest", guestType, guest ? 17 : 23}, Row{L"User", userType, 17},
                                      Row{L"User", userType, 23}));
    }
}

// The console offers no refresh there, but may send it.
// Proves: UsersCollectionItem on the console's refresh.
TEST_F(UserList, isReadAnewByARefresh)
{
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM parent = snapIn.node(node);
    const auto object = snapIn.object(parent.lParam);
    ASSERT_EQ(S_OK, bare->component->Notify(object.Get(), MMCN_SHOW, TRUE, parent.ID));
    addUsers({L"alice"});
    EXPECT_EQ(S_OK, bare->component->Notify(object.Get(), MMCN_REFRESH, 0, 0));
    EXPECT_EQ(2u, bare->console.results.rows.size());
}

} // namespace
} // namespace Acceptance
