#include "frame/BareSnapIn.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{
namespace
{

// MMCN_ has numbers from 0x8001 on; what stands between and behind them is no notification at all.
constexpr unsigned firstNotification = 0x8001;
constexpr unsigned behindNotifications = 0x8030;

bool hasHandler(unsigned event)
{
    switch (event)
    {
    case MMCN_SHOW:
    case MMCN_EXPAND:
    case MMCN_ADD_IMAGES:
    case MMCN_DBLCLICK:
    case MMCN_SELECT:
    case MMCN_DELETE:
    case MMCN_VIEW_CHANGE:
    case MMCN_REFRESH:
    case MMCN_BTN_CLICK:
        return true;
    default:
        return false;
    }
}

class Dispatch : public ConsoleTest
{
  protected:
    struct Snap : BareSnapIn
    {
        std::unique_ptr<View> view = makeView();

        HRESULT notify(const std::wstring& path, MMC_NOTIFY_TYPE event, LPARAM arg = 0, LPARAM param = 0)
        {
            return view->component->Notify(object(path).Get(), event, arg, param);
        }
    };
};

TEST_F(Dispatch, whatNoNodeHandlesIsNotImplemented)
{
    Snap snapIn;
    const auto root = snapIn.object();
    for (unsigned event = 0; event < behindNotifications; ++event)
    {
        if (event == 0x100)
        {
            event = firstNotification;
        }
        if (!hasHandler(event))
        {
            EXPECT_EQ(E_NOTIMPL, snapIn.view->component->Notify(root.Get(), static_cast<MMC_NOTIFY_TYPE>(event), 1, 1));
            EXPECT_EQ(E_NOTIMPL, snapIn.data->Notify(root.Get(), static_cast<MMC_NOTIFY_TYPE>(event), 1, 1));
        }
    }
}

TEST_F(Dispatch, whatNoNodeHandlesNeedsNoDataObject)
{
    Snap snapIn;
    for (const MMC_NOTIFY_TYPE event : {MMCN_COLUMN_CLICK, MMCN_PROPERTY_CHANGE, MMCN_DESELECT_ALL, MMCN_FILTER_CHANGE})
    {
        EXPECT_EQ(E_NOTIMPL, snapIn.view->component->Notify(nullptr, event, 0, 0));
    }
}

TEST_F(Dispatch, showOfTheRootAndOfEngineSettings)
{
    Snap snapIn;
    for (const wchar_t* const path : {L"", L"Engine Settings"})
    {
        snapIn.view->console.results.styles.clear();
        EXPECT_EQ(S_OK, snapIn.notify(path, MMCN_SHOW, TRUE, BareSnapIn::rootHandle));
        const std::vector<std::pair<MMC_RESULT_VIEW_STYLE, MMC_RESULT_VIEW_STYLE>> noSortHeader{
            {MMC_NOSORTHEADER, static_cast<MMC_RESULT_VIEW_STYLE>(0)}};
        EXPECT_EQ(noSortHeader, snapIn.view->console.results.styles);
        EXPECT_TRUE(snapIn.view->console.header.columns.empty());
        EXPECT_TRUE(snapIn.view->console.results.inserted.empty());
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_SHOW, FALSE, BareSnapIn::rootHandle));
        EXPECT_EQ(1u, snapIn.view->console.results.styles.size());
    }
}

TEST_F(Dispatch, showOfTheAboutNodeWhenHiddenClearsAndTellsTheViews)
{
    Snap snapIn;
    EXPECT_EQ(S_OK, snapIn.notify(L"About KV Tessaro", MMCN_SHOW, TRUE, BareSnapIn::rootHandle));
    EXPECT_EQ(4u, snapIn.view->console.results.rows.size());
    snapIn.view->console.updates.clear();
    EXPECT_EQ(S_OK, snapIn.notify(L"About KV Tessaro", MMCN_SHOW, FALSE, BareSnapIn::rootHandle));
    EXPECT_TRUE(snapIn.view->console.results.rows.empty());
    EXPECT_EQ(1u, snapIn.view->console.updates.size());
    EXPECT_EQ(2u, snapIn.view->console.header.columns.size());
}

TEST_F(Dispatch, showOfASettingsGroupWhenHiddenIsHandledAndInsertsNothing)
{
    Snap snapIn;
    for (const wchar_t* const path :
         {L"Engine Settings\\Listener Configuration", L"Engine Settings\\AFP Encoder", L"Log"})
    {
        EXPECT_EQ(S_OK, snapIn.notify(path, MMCN_SHOW, FALSE, BareSnapIn::rootHandle));
    }
    EXPECT_TRUE(snapIn.view->console.results.inserted.empty());
    EXPECT_TRUE(snapIn.view->console.header.columns.empty());
}

TEST_F(Dispatch, doubleClickSelectsTheNodeByItsHandle)
{
    Snap snapIn;
    const SCOPEDATAITEM about = snapIn.node(L"About KV Tessaro");
    const auto object = snapIn.object(about.lParam);
    EXPECT_EQ(S_OK, snapIn.view->component->Notify(object.Get(), MMCN_DBLCLICK, 0, 0));
    EXPECT_EQ(std::vector<HSCOPEITEM>{about.ID}, snapIn.view->console.selections);

    snapIn.view->console.selectAnswer = E_ACCESSDENIED;
    EXPECT_EQ(E_ACCESSDENIED, snapIn.view->component->Notify(object.Get(), MMCN_DBLCLICK, 0, 0));
}

TEST_F(Dispatch, theRootOpensWithTheHandleThatItWasExpandedWith)
{
    Snap snapIn;
    snapIn.expand(0, BareSnapIn::rootHandle);
    EXPECT_EQ(S_OK, snapIn.notify(L"", MMCN_DBLCLICK));
    EXPECT_EQ(std::vector<HSCOPEITEM>{BareSnapIn::rootHandle}, snapIn.view->console.selections);
}

TEST_F(Dispatch, handlersThatANodeDoesNotHaveAreNotImplemented)
{
    Snap snapIn;
    for (const wchar_t* const path : {L"", L"About KV Tessaro", L"Engine Settings", L"Engine Settings\\AFP Encoder",
                                      L"Engine Settings\\Listener Configuration", L"Log"})
    {
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_SELECT, MAKELONG(TRUE, TRUE)));
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_SELECT, MAKELONG(TRUE, FALSE)));
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_DELETE));
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_REFRESH));
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(path, MMCN_BTN_CLICK, 0, MMC_VERB_PROPERTIES));
        EXPECT_EQ(E_NOTIMPL, snapIn.data->Notify(snapIn.object(path).Get(), MMCN_DELETE, 0, 0));
    }
    EXPECT_TRUE(snapIn.view->console.verbs.switched.empty());
}

TEST_F(Dispatch, buttonClicksOfOtherVerbsAreNotImplemented)
{
    Snap snapIn;
    for (const MMC_CONSOLE_VERB verb : {MMC_VERB_OPEN, MMC_VERB_COPY, MMC_VERB_PASTE, MMC_VERB_DELETE, MMC_VERB_RENAME,
                                        MMC_VERB_REFRESH, MMC_VERB_PRINT, MMC_VERB_CUT})
    {
        EXPECT_EQ(E_NOTIMPL, snapIn.notify(L"Log", MMCN_BTN_CLICK, 0, verb));
    }
}

TEST_F(Dispatch, theComponentDataHasNoResultPane)
{
    Snap snapIn;
    EXPECT_EQ(E_UNEXPECTED, snapIn.data->Notify(snapIn.object(L"Log").Get(), MMCN_SHOW, TRUE, BareSnapIn::rootHandle));
    EXPECT_EQ(E_UNEXPECTED, snapIn.data->Notify(snapIn.object(L"Log").Get(), MMCN_VIEW_CHANGE, 0, 0));
    EXPECT_TRUE(snapIn.console.results.inserted.empty());
    EXPECT_EQ(0, snapIn.console.results.clears);
}

TEST_F(Dispatch, theConsoleIsHeldForTheCallOnly)
{
    Snap snapIn;
    const long before = snapIn.view->console.references();
    long during = 0;
    snapIn.view->console.results.onClear = [&] { during = snapIn.view->console.references(); };
    snapIn.notify(L"About KV Tessaro", MMCN_SHOW, TRUE, BareSnapIn::rootHandle);
    EXPECT_LT(before, during);
    EXPECT_EQ(before, snapIn.view->console.references());
}

} // namespace
} // namespace Acceptance
