#include "frame/BareSnapIn.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

// What a view shows, with one view and with two on the same tree.
class Views : public ConsoleTest
{
  protected:
    // Passes on every update to all of its views, as a console does.
    struct Snap : BareSnapIn
    {
        Snap()
        {
            const auto pass = [this](IDataObject* object)
            {
                for (View* const view : {first.get(), second.get()})
                {
                    EXPECT_EQ(S_OK, view->component->Notify(object, MMCN_VIEW_CHANGE, 0, 0));
                }
            };
            console.onUpdate = first->console.onUpdate = second->console.onUpdate = pass;
        }

        void show(View& view, const std::wstring& path, bool showing = true)
        {
            view.component->Notify(object(path).Get(), MMCN_SHOW, showing, rootHandle);
            if (!showing)
            {
                // A console empties its pane itself.
                view.console.results.rows.clear();
            }
        }
        static void forget(View& view)
        {
            view.console.results.clears = 0;
            view.console.results.inserted.clear();
        }

        std::unique_ptr<View> first = makeView();
        std::unique_ptr<View> second = makeView();
    };
};

TEST_F(Views, rowsAreInsertedAfterTheColumnsOfTheNode)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"About KV Tessaro");
    const std::vector<HeaderDouble::Column> columns{{0, L"Property", LVCFMT_LEFT, 200},
                                                    {1, L"Value", LVCFMT_LEFT, 200}};
    EXPECT_EQ(columns, snapIn.first->console.header.columns);
    EXPECT_EQ(4u, snapIn.first->console.results.rows.size());
    EXPECT_EQ(1u, snapIn.first->console.results.styles.size());
    EXPECT_TRUE(snapIn.second->console.results.rows.empty());
}

TEST_F(Views, aViewThatShowsTheNodeIsFilledAgainAndAnotherIsLeftAlone)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    snapIn.show(*snapIn.second, L"About KV Tessaro");
    snapIn.forget(*snapIn.first);
    snapIn.forget(*snapIn.second);
    snapIn.console.onUpdate(snapIn.object(L"Log").Get());
    EXPECT_EQ(1, snapIn.first->console.results.clears);
    EXPECT_EQ(3u, snapIn.first->console.results.rows.size());
    EXPECT_EQ(0, snapIn.second->console.results.clears);
    EXPECT_EQ(4u, snapIn.second->console.results.rows.size());
    EXPECT_TRUE(snapIn.second->console.results.inserted.empty());
}

TEST_F(Views, aSecondViewOnANodeLeavesTheFirstWithItsRows)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    snapIn.show(*snapIn.second, L"Log");
    EXPECT_EQ(3u, snapIn.first->console.results.rows.size());
    EXPECT_EQ(3u, snapIn.second->console.results.rows.size());
}

TEST_F(Views, leavingANodeInOneViewLeavesTheOtherWithItsRows)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    snapIn.show(*snapIn.second, L"Log");
    snapIn.show(*snapIn.first, L"Log", false);
    EXPECT_TRUE(snapIn.first->console.results.rows.empty());
    EXPECT_EQ(3u, snapIn.second->console.results.rows.size());
}

TEST_F(Views, aViewThatLeftTheNodeIsNotFilledAgain)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    snapIn.show(*snapIn.first, L"Log", false);
    snapIn.forget(*snapIn.first);
    snapIn.console.onUpdate(snapIn.object(L"Log").Get());
    EXPECT_EQ(0, snapIn.first->console.results.clears);
    EXPECT_TRUE(snapIn.first->console.results.inserted.empty());
}

TEST_F(Views, aViewThatShowsTheRootIsClearedOfWhatTheSnapInInserted)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"");
    snapIn.console.onUpdate(snapIn.object().Get());
    EXPECT_EQ(1, snapIn.first->console.results.clears);
    EXPECT_TRUE(snapIn.first->console.results.inserted.empty());
}

TEST_F(Views, eachUpdatesARowByItsOwnId)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    // One refill more makes the ids of the second view differ from the first's.
    snapIn.show(*snapIn.second, L"About KV Tessaro");
    snapIn.show(*snapIn.second, L"About KV Tessaro", false);
    snapIn.show(*snapIn.second, L"Log");
    const auto& firstRow = snapIn.first->console.results.rows[1];
    const auto& secondRow = snapIn.second->console.results.rows[1];
    ASSERT_EQ(firstRow.lParam, secondRow.lParam);
    ASSERT_NE(firstRow.itemID, secondRow.itemID);
    snapIn.console.onUpdate(snapIn.first->object(firstRow.lParam).Get());
    EXPECT_EQ(std::vector<HRESULTITEM>{firstRow.itemID}, snapIn.first->console.results.updated);
    EXPECT_EQ(std::vector<HRESULTITEM>{secondRow.itemID}, snapIn.second->console.results.updated);
}

TEST_F(Views, aRowThatAViewDoesNotShowIsNotUpdatedThere)
{
    Snap snapIn;
    snapIn.show(*snapIn.first, L"Log");
    snapIn.show(*snapIn.second, L"About KV Tessaro");
    snapIn.console.onUpdate(snapIn.first->object(snapIn.first->console.results.rows[0].lParam).Get());
    EXPECT_EQ(1u, snapIn.first->console.results.updated.size());
    EXPECT_TRUE(snapIn.second->console.results.updated.empty());
}

TEST_F(Views, aRowThatTheConsoleRefusesEndsTheFilling)
{
    Snap snapIn;
    snapIn.first->console.results.insertAnswer = E_OUTOFMEMORY;
    EXPECT_EQ(E_OUTOFMEMORY, snapIn.first->component->Notify(snapIn.object(L"Log").Get(), MMCN_SHOW, TRUE, 1));
}

TEST_F(Views, aCookieOfANodeThatIsGoneIsRefused)
{
    Snap living;
    MMC_COOKIE stale = 0;
    {
        BareSnapIn gone;
        stale = gone.node(L"Log").lParam;
        // The last one that was asked for.
        EXPECT_EQ(L"Log", gone.displayName(stale));
    }
    IDataObject* object = nullptr;
    EXPECT_EQ(E_INVALIDARG, living.data->QueryDataObject(stale, CCT_SCOPE, &object));
    EXPECT_EQ(nullptr, object);
    SCOPEDATAITEM scopeItem{};
    scopeItem.mask = SDI_STR;
    scopeItem.lParam = stale;
    EXPECT_EQ(E_INVALIDARG, living.data->GetDisplayInfo(&scopeItem));
    RESULTDATAITEM row{};
    row.mask = RDI_STR;
    row.lParam = stale;
    EXPECT_EQ(E_INVALIDARG, living.first->component->GetDisplayInfo(&row));
    LPOLESTR type = nullptr;
    long options = 0;
    EXPECT_EQ(E_INVALIDARG, living.first->component->GetResultViewType(stale, &type, &options));
}

TEST_F(Views, inTwoWindowsOnOneNodeShowAnEdit)
{
    Registry::preferRestart(false);
    open(2);
    view(0).select(L"Engine Settings\\Listener Configuration");
    view(1).select(L"Engine Settings\\Listener Configuration");
    robot.dialog(L"Edit Property",
                 [](ModalWindow& dialog)
                 {
                     dialog.type(203, L"2345");
                     dialog.press(IDOK);
                 });
    view(0).doubleClick(L"Port");
    EXPECT_EQ(L"2345", view(0).cell(L"Port", L"Value"));
    EXPECT_EQ(L"2345", view(1).cell(L"Port", L"Value"));
}

TEST_F(Views, inAWindowDoubleClickOnANodeListedAsARowOpensIt)
{
    open();
    view().select(L"");
    view().doubleClick(L"Engine Settings");
    EXPECT_EQ(L"Engine Settings", view().selected());
    view().doubleClick(L"AFP Encoder");
    EXPECT_EQ(L"Engine Settings\\AFP Encoder", view().selected());
    EXPECT_EQ(4u, view().rows().size());
}

TEST_F(Views, inAWindowTheTreesRowsStayWhenTheServiceIsStartedFromTheRoot)
{
    Service::useFreePort();
    Service::install();
    open();
    view().select(L"");
    view().pressToolbarButton(1002);
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
    ASSERT_EQ(7, view().view().rowCount());
    EXPECT_EQ(L"About KV Tessaro", view().view().rowText(0, 0));
    EXPECT_EQ(L"Log", view().view().rowText(6, 0));
}

TEST_F(Views, inAWindowSelectingTheSameNodeAgainShowsItOnce)
{
    open();
    view().select(L"Log");
    const auto rows = view().rows();
    const auto columns = view().columns();
    view().select(L"Log");
    EXPECT_EQ(rows, view().rows());
    EXPECT_EQ(columns, view().columns());
    view().select(L"About KV Tessaro");
    view().select(L"Log");
    EXPECT_EQ(rows, view().rows());
}

} // namespace
} // namespace Acceptance
