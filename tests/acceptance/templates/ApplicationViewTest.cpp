#include "frame/BareSnapIn.h"
#include "frame/menus.h"
#include "kit/DatabaseLock.h"
#include "templates/TemplatesTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// What an application's node shows.
class ApplicationView : public TemplatesTest
{
  protected:
    static constexpr wchar_t letters[] = L"Server Templates\\Letters";

    void SetUp() override
    {
        TemplatesTest::SetUp();
        addApplication(L"Letters");
    }
};

TEST_F(ApplicationView, hasOneColumn)
{
    openAt(letters);
    EXPECT_THAT(view().columns(), ElementsAre(ConsoleView::Column{L"Name", 250}));
    const auto styles = recorder.calls(L"IResultData::ModifyViewStyle");
    ASSERT_EQ(1u, styles.size());
    EXPECT_EQ(L"add=4, remove=0", styles.front().call.arguments) << "MMC_NOSORTHEADER";
}

TEST_F(ApplicationView, listsTheTemplatesInTheirOrder)
{
    for (const wchar_t* const name : {L"reminder.kvd", L"letter.xsl", L"письмо 手紙.xslt"})
    {
        addTemplate(L"Letters", name);
    }
    openAt(letters);
    // The nodes below it stand before them, as everywhere in a console.
    EXPECT_THAT(names(), ElementsAre(L"Users", L"reminder.kvd", L"letter.xsl", L"письмо 手紙.xslt"));
}

TEST_F(ApplicationView, hasAPictureOfItsOwnForEachStylesheet)
{
    const std::pair<const wchar_t*, int> cases[] = {{L"a.xsl", 21}, {L"b.xslt", 20}, {L"c.kvd", 20},    {L"d.XSL", 20},
                                                    {L"xsl", 20},   {L".xsl", 21},   {L"e.xsl.kvd", 20}};
    for (const auto& [name, image] : cases)
    {
        addTemplate(L"Letters", name);
    }
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(letters);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    ASSERT_EQ(std::size(cases), bare->console.results.inserted.size());
    for (std::size_t row = 0; row < std::size(cases); ++row)
    {
        const RESULTDATAITEM& inserted = bare->console.results.inserted[row];
        EXPECT_EQ(cases[row].first, bare->cell(inserted.lParam, 0));
        EXPECT_EQ(cases[row].second, inserted.nImage) << row;
    }
}

TEST_F(ApplicationView, hasNothingInFurtherColumns)
{
    addTemplate(L"Letters", L"letter.kvd");
    BareSnapIn snapIn;
    const auto bare = snapIn.makeView();
    const SCOPEDATAITEM node = snapIn.node(letters);
    ASSERT_EQ(S_OK, bare->component->Notify(snapIn.object(node.lParam).Get(), MMCN_SHOW, TRUE, node.ID));
    ASSERT_EQ(1u, bare->console.results.inserted.size());
    EXPECT_EQ(L"", bare->cell(bare->console.results.inserted.front().lParam, 1));
}

TEST_F(ApplicationView, readsTheTemplatesWheneverItIsShown)
{
    openAt(letters);
    addTemplate(L"Letters", L"letter.kvd");
    EXPECT_THAT(names(), Not(Contains(L"letter.kvd")));
    view().select(branch);
    view().select(letters);
    EXPECT_THAT(names(), Contains(L"letter.kvd"));
}

TEST_F(ApplicationView, isReadAnewForEveryViewThatShowsIt)
{
    openAt(letters, 2);
    addTemplate(L"Letters", L"letter.kvd");
    view(1).select(branch);
    view(1).select(letters);
    EXPECT_THAT(names(0), ElementsAre(L"Users", L"letter.kvd"));
    EXPECT_THAT(names(1), ElementsAre(L"Users", L"letter.kvd"));
}

// The number of an application is its position in the list.
// Proves: an application's id is its position, so that its node shows its neighbour once one before it was removed.
TEST_F(ApplicationView, showsTheNeighbourOnceAnEarlierApplicationIsGone)
{
    addApplications({L"Bills", L"Orders"});
    addTemplate(L"Bills", L"bill.kvd");
    addTemplate(L"Orders", L"order.kvd");
    openAt(branch);
    removeApplication(L"Letters");
    view().select(nodeOf(L"Bills"));
    EXPECT_THAT(names(), Contains(L"order.kvd"));
    EXPECT_THAT(names(), Not(Contains(L"bill.kvd")));
}

TEST_F(ApplicationView, saysThatThereIsNoApplicationAtItsPositionAnyMore)
{
    addApplication(L"Bills");
    openAt(branch);
    view().children(nodeOf(L"Bills"));
    removeApplication(L"Letters");
    error(L"The application is no longer there. Please refresh the list.");
    view().select(nodeOf(L"Bills"));
    EXPECT_THAT(view().columns(), ElementsAre(ConsoleView::Column{L"Name", 250}));
    EXPECT_THAT(names(), ElementsAre(L"Users"));
}

TEST_F(ApplicationView, isEmptyWhereTheTemplatesCannotBeRead)
{
    addTemplate(L"Letters", L"letter.kvd");
    openAt(branch);
    view().children(letters);
    {
        const DatabaseLock lock(database());
        error(databaseInUse());
        view().select(letters);
        EXPECT_THAT(names(), ElementsAre(L"Users"));
    }
    view().select(branch);
    view().select(letters);
    EXPECT_THAT(names(), ElementsAre(L"Users", L"letter.kvd"));
}

TEST_F(ApplicationView, hasTheseCommandsInItsMenus)
{
    addTemplate(L"Letters", L"letter.kvd");
    EXPECT_THAT(menuOfNode(branch), ElementsAre(topItem(L"&Add Application...", 1058)));
    EXPECT_THAT(menuOfNode(letters), ElementsAre(topItem(L"&Edit Application...", 1062),
                                                 topItem(L"&Add Template...", 1053), topItem(L"Add &Folder...", 1060)));
    EXPECT_THAT(menuOfRow(letters, 0), ElementsAre(topItem(L"&Edit Template...", 1052)));
}

TEST_F(ApplicationView, canBeDeletedAndSoCanATemplate)
{
    addTemplate(L"Letters", L"letter.kvd");
    openAt(letters);
    EXPECT_TRUE(view().view().verb(MMC_VERB_DELETE).enabled);
    EXPECT_TRUE(view().canDelete(L"letter.kvd"));
    view().select(branch);
    EXPECT_FALSE(view().view().verb(MMC_VERB_DELETE).enabled) << "the branch stays";
    EXPECT_TRUE(view().canDelete(L"Letters")) << "an application that is listed as a row";
}

TEST_F(ApplicationView, hasNoOtherVerbs)
{
    addTemplate(L"Letters", L"letter.kvd");
    openAt(letters);
    for (const int row : {-1, 1})
    {
        view().view().selectRows(row < 0 ? std::vector<int>() : std::vector{row});
        for (const MMC_CONSOLE_VERB verb : {MMC_VERB_COPY, MMC_VERB_PASTE, MMC_VERB_RENAME, MMC_VERB_REFRESH,
                                            MMC_VERB_PRINT, MMC_VERB_CUT, MMC_VERB_PROPERTIES})
        {
            EXPECT_FALSE(view().view().verb(verb).enabled) << row << ' ' << verb;
        }
    }
}

TEST_F(ApplicationView, opensByADoubleClickOnItsRow)
{
    openAt(branch);
    view().doubleClick(L"Letters");
    EXPECT_EQ(letters, view().selected());
}

} // namespace
} // namespace Acceptance
