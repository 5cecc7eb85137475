#include "frame/BareSnapIn.h"
#include "frame/SimulatedService.h"
#include "frame/serviceCommands.h"
#include "kit/ConsoleTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

const LPARAM selectedRow = MAKELONG(FALSE, TRUE);

using States = std::map<std::pair<int, MMC_BUTTON_STATE>, bool>;

States enabled(bool start, bool stop)
{
    States states{{{startCommand, ENABLED}, start}, {{stopCommand, ENABLED}, stop}};
    for (const int command : {startCommand, stopCommand})
    {
        for (const MMC_BUTTON_STATE off : {CHECKED, HIDDEN, INDETERMINATE, BUTTONPRESSED})
        {
            states[{command, off}] = false;
        }
    }
    return states;
}

class Toolbar : public ConsoleTest
{
  protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        Service::useFreePort();
    }

    // A view with the bar attached.
    struct Snap : BareSnapIn
    {
        std::unique_ptr<View> view = makeView();
        Microsoft::WRL::ComPtr<IExtendControlbar> bars = view->bars();
        ToolbarDouble& toolbar = view->controlbar.toolbar;
        HRESULT attached = bars->SetControlbar(&view->controlbar);

        HRESULT select(const std::wstring& path = {})
        {
            toolbar.states.clear();
            return bars->ControlbarNotify(MMCN_SELECT, selectedRow, reinterpret_cast<LPARAM>(object(path).Get()));
        }
        HRESULT click(int command, const std::wstring& path = {})
        {
            toolbar.states.clear();
            return bars->ControlbarNotify(MMCN_BTN_CLICK, reinterpret_cast<LPARAM>(object(path).Get()), command);
        }
    };

    void expectButtons(bool start, bool stop)
    {
        EXPECT_EQ(start, view().toolbarButton(startCommand).enabled);
        EXPECT_EQ(stop, view().toolbarButton(stopCommand).enabled);
    }
};

TEST_F(Toolbar, isAttachedOnceWithItsPictureAndButtons)
{
    Snap snapIn;
    EXPECT_EQ(S_OK, snapIn.attached);
    EXPECT_EQ(1, snapIn.view->controlbar.attachments);
    ASSERT_EQ(1u, snapIn.toolbar.pictures.size());
    const ToolbarDouble::Picture& picture = snapIn.toolbar.pictures.front();
    EXPECT_EQ(2, picture.images);
    EXPECT_EQ(16, picture.width);
    EXPECT_EQ(16, picture.height);
    EXPECT_EQ(32, picture.bitmap.bmWidth);
    EXPECT_EQ(16, picture.bitmap.bmHeight);
    EXPECT_EQ(RGB(0, 128, 128), picture.mask);
    ASSERT_EQ(2u, snapIn.toolbar.buttons.size());
    for (const std::size_t index : {0u, 1u})
    {
        const ToolbarDouble::Button& button = snapIn.toolbar.buttons[index];
        EXPECT_EQ(static_cast<int>(index), button.image);
        EXPECT_EQ(index == 0 ? startCommand : stopCommand, button.command);
        EXPECT_EQ(index == 0 ? L"Start the service" : L"Stop the service", button.tip);
        EXPECT_EQ(L"", button.text);
    }
}

TEST_F(Toolbar, everyStateOfTheServiceSetsTheButtons)
{
    const std::map<DWORD, std::pair<bool, bool>> table{{SERVICE_STOPPED, {true, false}},
                                                       {SERVICE_START_PENDING, {false, false}},
                                                       {SERVICE_STOP_PENDING, {false, false}},
                                                       {SERVICE_RUNNING, {false, true}},
                                                       {SERVICE_CONTINUE_PENDING, {false, false}},
                                                       {SERVICE_PAUSE_PENDING, {false, false}},
                                                       {SERVICE_PAUSED, {true, true}},
                                                       {99, {false, false}}};
    Snap snapIn;
    for (const auto& [state, buttons] : table)
    {
        SimulatedService service;
        service.statuses = {{state}};
        EXPECT_EQ(S_OK, snapIn.select());
        EXPECT_EQ(enabled(buttons.first, buttons.second), snapIn.toolbar.states) << state;
        EXPECT_EQ((std::vector<int>{2, 1}), service.closed);
        EXPECT_EQ(1, service.queries);
    }
}

TEST_F(Toolbar, isOffWithoutAWordWhenManagerOrServiceCannotBeOpened)
{
    Snap snapIn;
    SimulatedService service;
    service.serviceError = ERROR_SERVICE_DOES_NOT_EXIST;
    EXPECT_EQ(S_OK, snapIn.select());
    EXPECT_EQ(enabled(false, false), snapIn.toolbar.states);
    EXPECT_EQ(std::vector<int>{1}, service.closed);
    service.managerError = ERROR_ACCESS_DENIED;
    EXPECT_EQ(S_OK, snapIn.select());
    EXPECT_EQ(enabled(false, false), snapIn.toolbar.states);
    EXPECT_EQ(0, service.queries);
}

TEST_F(Toolbar, isOffAfterAMessageWhenTheStateCannotBeRead)
{
    Snap snapIn;
    SimulatedService service;
    service.queryError = ERROR_ACCESS_DENIED;
    robot.message({.text = L"Can't query service status: " + systemText(ERROR_ACCESS_DENIED) + L" (0x00000005).",
                   .caption = L"KV Tessaro 2010",
                   .icon = MB_ICONERROR});
    EXPECT_EQ(S_OK, snapIn.select());
    EXPECT_EQ(enabled(false, false), snapIn.toolbar.states);
}

TEST_F(Toolbar, theQueryShowsNoWaitCursor)
{
    Snap snapIn;
    SetCursor(LoadCursorW(nullptr, IDC_CROSS));
    static HCURSOR seen;
    const ImportPatch patch(
        "OpenSCManagerW",
        +[](LPCWSTR, LPCWSTR, DWORD) -> SC_HANDLE
        {
            seen = GetCursor();
            return nullptr;
        });
    snapIn.select();
    EXPECT_EQ(LoadCursorW(nullptr, IDC_CROSS), seen);
}

TEST_F(Toolbar, everyKindOfNodeHasIt)
{
    Snap snapIn;
    SimulatedService service;
    service.statuses = {{SERVICE_PAUSED}};
    for (const wchar_t* const path :
         {L"", L"About KV Tessaro", L"Hot Folders", L"Server Templates", L"Users", L"Server Certificates",
          L"Engine Settings", L"Engine Settings\\Listener Configuration", L"Engine Settings\\AFP Encoder",
          L"Engine Settings\\Private Fonts", L"Log", L"Log\\Log Files"})
    {
        EXPECT_EQ(S_OK, snapIn.select(path));
        EXPECT_EQ(enabled(true, true), snapIn.toolbar.states) << narrow(path);
    }
}

TEST_F(Toolbar, aClickStartsAndStopsAndTakesTheNewStateAtOnce)
{
    for (const wchar_t* const path : {L"", L"About KV Tessaro", L"Engine Settings\\AFP Encoder"})
    {
        Snap snapIn;
        SimulatedService service;
        service.statuses = {{SERVICE_STOPPED}, {SERVICE_RUNNING}};
        EXPECT_EQ(S_OK, snapIn.click(startCommand, path));
        EXPECT_EQ(1, service.starts);
        EXPECT_EQ(enabled(false, true), snapIn.toolbar.states);
        service.statuses = {{SERVICE_RUNNING}, {SERVICE_STOPPED}};
        EXPECT_EQ(S_OK, snapIn.click(stopCommand, path));
        EXPECT_EQ(1u, service.controls.size());
        EXPECT_EQ(enabled(true, false), snapIn.toolbar.states);
    }
}

TEST_F(Toolbar, theCommandsOfAViewDoTheSame)
{
    Snap snapIn;
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}, {SERVICE_RUNNING}};
    EXPECT_EQ(S_OK, snapIn.view->menus()->Command(startCommand, snapIn.object(L"Log").Get()));
    EXPECT_EQ(1, service.starts);
    EXPECT_EQ(enabled(false, true), snapIn.toolbar.states);
    EXPECT_TRUE(snapIn.view->console.updates.empty());
}

TEST_F(Toolbar, theCommandsOfTheComponentDataTellTheViews)
{
    Snap snapIn;
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}, {SERVICE_RUNNING}};
    EXPECT_EQ(S_OK, snapIn.menus()->Command(startCommand, snapIn.object(L"About KV Tessaro").Get()));
    const ConsoleDouble::Update about{
        {0x3F7862F1, 0xCC1A, 0x424B, {0x90, 0xF8, 0xD5, 0x7B, 0xC7, 0xEB, 0xE0, 0x21}}, 0, 0};
    EXPECT_EQ(std::vector{about}, snapIn.console.updates);
    EXPECT_TRUE(snapIn.toolbar.states.empty());
    service.statuses = {{SERVICE_RUNNING}, {SERVICE_STOPPED}};
    EXPECT_EQ(S_OK, snapIn.menus()->Command(stopCommand, snapIn.object(L"About KV Tessaro").Get()));
    EXPECT_EQ((std::vector{about, about}), snapIn.console.updates);
}

TEST_F(Toolbar, aFailedStartLeavesItAsItIs)
{
    Snap snapIn;
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}};
    service.startError = ERROR_SERVICE_DISABLED;
    robot.messageThat([](const MessageBoxSeen&) {});
    EXPECT_EQ(E_FAIL, snapIn.click(startCommand));
    EXPECT_TRUE(snapIn.toolbar.states.empty());
}

TEST_F(Toolbar, otherButtonsAndCommandsDoNothing)
{
    Snap snapIn;
    SimulatedService service;
    service.statuses = {{SERVICE_STOPPED}};
    for (const int command : {0, 1, 1000, 1001, 1004, 0xFFFF, -1})
    {
        EXPECT_EQ(E_NOTIMPL, snapIn.click(command)) << command;
        EXPECT_EQ(S_OK, snapIn.view->menus()->Command(command, snapIn.object().Get())) << command;
        EXPECT_EQ(S_OK, snapIn.menus()->Command(command, snapIn.object().Get())) << command;
    }
    EXPECT_EQ(0, service.starts);
    EXPECT_EQ(0, service.queries);
    EXPECT_TRUE(snapIn.toolbar.states.empty());
}

TEST_F(Toolbar, otherEventsOfTheBarAreNotImplemented)
{
    Snap snapIn;
    const auto object = reinterpret_cast<LPARAM>(snapIn.object().Get());
    for (const MMC_NOTIFY_TYPE event : {MMCN_DESELECT_ALL, MMCN_MENU_BTNCLICK, MMCN_SHOW})
    {
        EXPECT_EQ(E_NOTIMPL, snapIn.bars->ControlbarNotify(event, object, 0));
    }
}

TEST_F(Toolbar, isLetGoOfWhenTheConsoleTakesTheBarBack)
{
    Snap snapIn;
    EXPECT_NE(0, snapIn.toolbar.references());
    EXPECT_EQ(S_OK, snapIn.bars->SetControlbar(nullptr));
    EXPECT_EQ(0, snapIn.view->controlbar.references());
    EXPECT_EQ(0, snapIn.toolbar.references());
    EXPECT_EQ(S_OK, snapIn.select());
    EXPECT_TRUE(snapIn.toolbar.states.empty());
}

TEST_F(Toolbar, aBarThatCannotBeMadeIsTheFailureOfSetControlbar)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    view->controlbar.createAnswer = E_OUTOFMEMORY;
    EXPECT_EQ(E_OUTOFMEMORY, view->bars()->SetControlbar(&view->controlbar));
}

TEST_F(Toolbar, inAWindowFollowsTheRealService)
{
    open();
    view().select(L"");
    expectButtons(false, false);
    Service::install(L"--pausable");
    view().select(L"");
    expectButtons(true, false);
    Service::start();
    view().select(L"Log");
    expectButtons(false, true);
    Service::control(SERVICE_CONTROL_PAUSE);
    Service::waitFor(SERVICE_PAUSED);
    view().select(L"About KV Tessaro");
    expectButtons(true, true);
    for (const int command : {startCommand, stopCommand})
    {
        const Console::ToolbarButton button = view().toolbarButton(command);
        EXPECT_EQ(command == startCommand ? L"Start the service" : L"Stop the service", button.tooltip);
        EXPECT_FALSE(button.checked || button.hidden || button.indeterminate || button.pressed);
    }
}

TEST_F(Toolbar, inAWindowStartsAndStopsTheRealService)
{
    Service::install();
    open();
    view().select(L"Log");
    view().pressToolbarButton(startCommand);
    EXPECT_EQ(SERVICE_RUNNING, Service::state());
    expectButtons(false, true);
    view().pressToolbarButton(stopCommand);
    EXPECT_EQ(SERVICE_STOPPED, Service::state());
    expectButtons(true, false);
}

TEST_F(Toolbar, inAWindowIsOffWhileTheServiceHangs)
{
    Service::install(L"--start-hang --wait-hint 100");
    open();
    view().select(L"Log");
    view().pressToolbarButton(startCommand);
    EXPECT_EQ(SERVICE_START_PENDING, Service::state());
    expectButtons(false, false);
}

TEST_F(Toolbar, aServiceStoppedFromOutsideShowsAtTheNextSelection)
{
    Service::install();
    Service::start();
    open();
    view().select(L"Log");
    expectButtons(false, true);
    Service::control(SERVICE_CONTROL_STOP);
    Service::waitFor(SERVICE_STOPPED);
    view().select(L"About KV Tessaro");
    expectButtons(true, false);
}

TEST_F(Toolbar, aSelectedRowFollowsToo)
{
    Service::install();
    open();
    view().select(L"Log");
    Service::start();
    view().view().selectRows({0});
    expectButtons(false, true);
    view().pressToolbarButton(stopCommand);
    EXPECT_EQ(SERVICE_STOPPED, Service::state());
    expectButtons(true, false);
}

} // namespace
} // namespace Acceptance
