#include "frame/BareSnapIn.h"
#include "frame/SimulatedService.h"
#include "kit/ConsoleTest.h"

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

// What goes away while the plug-in is at work, and what is left when everything went.
class Lifetime : public ConsoleTest
{
  protected:
    static DWORD handles(DWORD kind) { return GetGuiResources(GetCurrentProcess(), kind); }
};

// Everything that a console does with the plug-in in one sitting.
void useOnce()
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    view->bars()->SetControlbar(&view->controlbar);
    for (const wchar_t* const path : {L"", L"About KV Tessaro", L"Log"})
    {
        const auto object = snapIn.object(path);
        ImageListDouble images;
        view->component->Notify(object.Get(), MMCN_ADD_IMAGES, reinterpret_cast<LPARAM>(&images), 1);
        view->component->Notify(object.Get(), MMCN_SHOW, TRUE, 1);
        MenuDouble menu;
        long allowed = CCM_INSERTIONALLOWED_TOP;
        if (!view->console.results.rows.empty())
        {
            view->menus()->AddMenuItems(view->object(view->console.results.rows.back().lParam).Get(), &menu, &allowed);
        }
        view->component->Notify(object.Get(), MMCN_SHOW, FALSE, 1);
    }
    ComPtr<ISnapinAbout> about;
    CoCreateInstance(aboutClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(about.GetAddressOf()));
    HICON icon = nullptr;
    HBITMAP bitmaps[3]{};
    COLORREF mask = 0;
    about->GetSnapinImage(&icon);
    about->GetStaticFolderImage(&bitmaps[0], &bitmaps[1], &bitmaps[2], &mask);
}

TEST_F(Lifetime, twoHundredInstancesLeaveNoHandle)
{
    useOnce();
    const DWORD drawing = handles(GR_GDIOBJECTS);
    const DWORD windows = handles(GR_USEROBJECTS);
    DWORD processHandles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &processHandles);
    for (int i = 0; i < 200; ++i)
    {
        useOnce();
    }
    EXPECT_EQ(drawing, handles(GR_GDIOBJECTS));
    EXPECT_EQ(windows, handles(GR_USEROBJECTS));
    DWORD after = 0;
    GetProcessHandleCount(GetCurrentProcess(), &after);
    EXPECT_EQ(processHandles, after);
    EXPECT_EQ(S_OK, canUnloadNow());
}

// The box of a failed start is open; meanwhile the console closes the view that the click came from.
TEST_F(Lifetime, aViewMayGoWhileItsMessageIsShown)
{
    SimulatedService service;
    service.managerError = ERROR_ACCESS_DENIED;
    BareSnapIn snapIn;
    auto view = snapIn.makeView();
    view->bars()->SetControlbar(&view->controlbar);
    const auto object = snapIn.object();
    const auto bars = view->bars().Detach();
    robot.messageThat(
        [&](const MessageBoxSeen&)
        {
            bars->SetControlbar(nullptr);
            view->component->Destroy(0);
            view->component.Reset();
            bars->Release();
        });
    EXPECT_EQ(E_FAIL, bars->ControlbarNotify(MMCN_BTN_CLICK, reinterpret_cast<LPARAM>(object.Get()), 1002));
    EXPECT_EQ(0, view->console.references());
    EXPECT_EQ(0, view->controlbar.references());
}

TEST_F(Lifetime, theWholeSnapInMayGoWhileItsMessageIsShown)
{
    SimulatedService service;
    service.managerError = ERROR_ACCESS_DENIED;
    BareSnapIn snapIn;
    auto object = snapIn.object(L"Log");
    const auto menus = snapIn.menus().Detach();
    robot.messageThat(
        [&](const MessageBoxSeen&)
        {
            snapIn.data->Destroy();
            snapIn.data.Reset();
            object.Reset();
            menus->Release();
        });
    EXPECT_EQ(E_FAIL, menus->Command(1002, object.Get()));
    EXPECT_EQ(S_OK, canUnloadNow());
}

TEST_F(Lifetime, theToolbarMayGoWhileTheStateCannotBeRead)
{
    SimulatedService service;
    service.queryError = ERROR_ACCESS_DENIED;
    BareSnapIn snapIn;
    auto view = snapIn.makeView();
    view->bars()->SetControlbar(&view->controlbar);
    robot.messageThat([&](const MessageBoxSeen&) { view->bars()->SetControlbar(nullptr); });
    const auto object = snapIn.object();
    EXPECT_EQ(S_OK, view->bars()->ControlbarNotify(MMCN_SELECT, 0, reinterpret_cast<LPARAM>(object.Get())));
    EXPECT_EQ(0, view->controlbar.toolbar.references());
}

// The editor of a setting is open in the first view; the console closes that view, or the second one.
TEST_F(Lifetime, aViewMayGoWhileADialogIsOpen)
{
    Registry::preferRestart(false);
    BareSnapIn snapIn;
    for (const bool own : {true, false})
    {
        auto view = snapIn.makeView();
        auto other = snapIn.makeView();
        const auto log = snapIn.object(L"Log");
        for (const auto* const each : {view.get(), other.get()})
        {
            each->component->Notify(log.Get(), MMCN_SHOW, TRUE, 1);
        }
        auto row = view->object(view->console.results.rows[1].lParam);
        IComponent* const called = view->component.Get();
        robot.dialog(
            L"Edit Property",
            [&](ModalWindow& dialog)
            {
                BareSnapIn::View& closed = own ? *view : *other;
                closed.component->Destroy(0);
                closed.component.Reset();
                row.Reset();
                dialog.press(IDOK);
            },
            Owner::frame);
        frame.activate();
        called->Notify(row.Get(), MMCN_DBLCLICK, 0, 0);
        EXPECT_EQ(0, (own ? view : other)->console.references());
    }
    EXPECT_EQ(L"%APP_DATA%\\Brimlow\\Log\\", ServerFiles::setting(L"LogFolder"));
}

} // namespace
} // namespace Acceptance
