#include "frame/BareSnapIn.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

constexpr long allMenus =
    CCM_INSERTIONALLOWED_TOP | CCM_INSERTIONALLOWED_NEW | CCM_INSERTIONALLOWED_TASK | CCM_INSERTIONALLOWED_VIEW;

class Menus : public ConsoleTest
{
  protected:
    // The view with the rows of a node in it.
    struct Shown : BareSnapIn
    {
        explicit Shown(const std::wstring& path)
        {
            view->component->Notify(object(path).Get(), MMCN_SHOW, TRUE, BareSnapIn::rootHandle);
        }

        std::unique_ptr<View> view = makeView();
        MenuDouble menu;
    };
};

TEST_F(Menus, ofASettingRowHasOneItemAtTheTop)
{
    Shown snapIn(L"Log");
    long allowed = allMenus;
    const auto row = snapIn.view->object(snapIn.view->console.results.rows.front().lParam);
    EXPECT_EQ(S_OK, snapIn.view->menus()->AddMenuItems(row.Get(), &snapIn.menu, &allowed));
    const MenuDouble::Item edit{.text = L"&Edit Property",
                                .statusText = L"",
                                .command = 1000,
                                .insertionPoint = static_cast<long>(CCM_INSERTIONPOINTID_PRIMARY_TOP),
                                .flags = MF_ENABLED,
                                .specialFlags = 0};
    EXPECT_EQ(std::vector{edit}, snapIn.menu.items);
    EXPECT_EQ(allMenus, allowed);
}

TEST_F(Menus, ofASettingRowIsEmptyWhereTheTopIsNotAllowed)
{
    Shown snapIn(L"Log");
    const auto row = snapIn.view->object(snapIn.view->console.results.rows.front().lParam);
    for (long allowed : {0L, allMenus & ~static_cast<long>(CCM_INSERTIONALLOWED_TOP)})
    {
        EXPECT_EQ(S_OK, snapIn.view->menus()->AddMenuItems(row.Get(), &snapIn.menu, &allowed));
    }
    EXPECT_TRUE(snapIn.menu.items.empty());
}

TEST_F(Menus, nodesWithoutAMenuResourceAddNothing)
{
    Shown snapIn(L"About KV Tessaro");
    for (const wchar_t* const path : {L"", L"About KV Tessaro", L"Engine Settings", L"Engine Settings\\AFP Encoder",
                                      L"Engine Settings\\Listener Configuration", L"Log"})
    {
        long allowed = allMenus;
        EXPECT_EQ(S_OK, snapIn.menus()->AddMenuItems(snapIn.object(path).Get(), &snapIn.menu, &allowed));
        EXPECT_EQ(S_OK, snapIn.view->menus()->AddMenuItems(snapIn.object(path).Get(), &snapIn.menu, &allowed));
    }
    long allowed = allMenus;
    for (const RESULTDATAITEM& row : snapIn.view->console.results.rows)
    {
        EXPECT_EQ(S_OK,
                  snapIn.view->menus()->AddMenuItems(snapIn.view->object(row.lParam).Get(), &snapIn.menu, &allowed));
    }
    EXPECT_TRUE(snapIn.menu.items.empty());
}

TEST_F(Menus, inAWindowShowTheOneCommandOfASettingRow)
{
    open();
    view().select(L"Log");
    EXPECT_EQ(std::vector<std::wstring>{L"&Edit Property"}, view().menu(L"Log Level"));
    view().select(L"About KV Tessaro");
    EXPECT_EQ(std::vector<std::wstring>(), view().menu(L"Version"));
    EXPECT_EQ(std::vector<std::wstring>(), view().nodeMenu(L"Engine Settings"));
}

constexpr MMC_CONSOLE_VERB settledVerbs[] = {MMC_VERB_COPY,    MMC_VERB_PASTE, MMC_VERB_DELETE, MMC_VERB_RENAME,
                                             MMC_VERB_REFRESH, MMC_VERB_PRINT, MMC_VERB_CUT,    MMC_VERB_PROPERTIES};

TEST_F(Menus, noVerbIsEnabledOnNodesAndRowsOfThisKind)
{
    open();
    for (const wchar_t* const path :
         {L"", L"About KV Tessaro", L"Users", L"Engine Settings", L"Engine Settings\\AFP Encoder", L"Log"})
    {
        view().select(path);
        for (const MMC_CONSOLE_VERB verb : settledVerbs)
        {
            EXPECT_FALSE(view().view().verb(verb).enabled) << verb;
        }
        for (int row = 0; row < view().view().rowCount(); ++row)
        {
            view().view().selectRows({row});
            // The hot folders are refreshed by the console's own command.
            const bool refreshes = view().view().rowText(row, 0) == L"Hot Folders";
            for (const MMC_CONSOLE_VERB verb : settledVerbs)
            {
                EXPECT_EQ(refreshes && verb == MMC_VERB_REFRESH, view().view().verb(verb).enabled)
                    << row << ' ' << verb;
            }
        }
    }
}

TEST_F(Menus, deleteOnASettingRowDoesNothing)
{
    ServerFiles::write(ServerFiles::configuration(),
                       ServerFiles::configurationWith("    <add key=\"LogLevel\" value=\"All\"/>\r\n"));
    const std::string before = ServerFiles::read(ServerFiles::configuration());
    open();
    view().select(L"Log");
    const auto rows = view().rows();
    recorder.forgetCalls();
    view().pressDelete(L"Log Level");
    EXPECT_TRUE(recorder.calls(L"IComponent::Notify", L"MMCN_DELETE").empty());
    EXPECT_EQ(rows, view().rows());
    EXPECT_EQ(before, ServerFiles::read(ServerFiles::configuration()));
}

TEST_F(Menus, deleteSentToASettingRowAllTheSameIsNotImplemented)
{
    Shown snapIn(L"Log");
    const auto row = snapIn.view->object(snapIn.view->console.results.rows.front().lParam);
    EXPECT_EQ(E_NOTIMPL, snapIn.view->component->Notify(row.Get(), MMCN_DELETE, 0, 0));
    EXPECT_EQ(E_NOTIMPL, snapIn.view->component->Notify(row.Get(), MMCN_SELECT, MAKELONG(FALSE, TRUE), 0));
    EXPECT_TRUE(snapIn.view->console.verbs.switched.empty());
}

} // namespace
} // namespace Acceptance
