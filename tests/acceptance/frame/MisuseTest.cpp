#include "frame/BareSnapIn.h"
#include "frame/doubles/DataObjectDouble.h"
#include "kit/ConsoleTest.h"

using Microsoft::WRL::ComPtr;

namespace Acceptance
{
namespace
{

const MMC_NOTIFY_TYPE handled[] = {MMCN_SHOW,   MMCN_EXPAND,      MMCN_ADD_IMAGES, MMCN_DBLCLICK, MMCN_SELECT,
                                   MMCN_DELETE, MMCN_VIEW_CHANGE, MMCN_REFRESH,    MMCN_BTN_CLICK};

// What no console does, or should not do. The plug-in answers and lives.
class Misuse : public ConsoleTest
{
};

TEST_F(Misuse, nullPointersToTheComponentData)
{
    BareSnapIn snapIn;
    EXPECT_EQ(E_POINTER, snapIn.data->QueryInterface(IID_IUnknown, nullptr));
    EXPECT_EQ(E_POINTER, snapIn.data->Initialize(nullptr));
    EXPECT_EQ(E_POINTER, snapIn.data->CreateComponent(nullptr));
    EXPECT_EQ(E_POINTER, snapIn.data->QueryDataObject(0, CCT_SCOPE, nullptr));
    EXPECT_EQ(E_POINTER, snapIn.data->GetDisplayInfo(nullptr));
    EXPECT_EQ(E_POINTER, snapIn.data->CompareObjects(nullptr, snapIn.object().Get()));
    EXPECT_EQ(E_POINTER, snapIn.data->CompareObjects(snapIn.object().Get(), nullptr));
    for (const MMC_NOTIFY_TYPE event : handled)
    {
        EXPECT_EQ(E_POINTER, snapIn.data->Notify(nullptr, event, 1, 1)) << event;
    }
}

TEST_F(Misuse, nullPointersToAComponent)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    LPOLESTR type = nullptr;
    long options = 0;
    EXPECT_EQ(E_POINTER, view->component->QueryInterface(IID_IUnknown, nullptr));
    EXPECT_EQ(E_POINTER, view->component->Initialize(nullptr));
    EXPECT_EQ(E_POINTER, view->component->QueryDataObject(0, CCT_RESULT, nullptr));
    EXPECT_EQ(E_POINTER, view->component->QueryDataObject(MMC_MULTI_SELECT_COOKIE, CCT_RESULT, nullptr));
    EXPECT_EQ(E_POINTER, view->component->GetResultViewType(0, nullptr, &options));
    EXPECT_EQ(E_POINTER, view->component->GetResultViewType(0, &type, nullptr));
    EXPECT_EQ(E_POINTER, view->component->GetDisplayInfo(nullptr));
    EXPECT_EQ(E_POINTER, view->component->CompareObjects(nullptr, nullptr));
    for (const MMC_NOTIFY_TYPE event : handled)
    {
        EXPECT_EQ(E_POINTER, view->component->Notify(nullptr, event, 1, 1)) << event;
    }
}

TEST_F(Misuse, nullPointersToMenusAndBars)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    MenuDouble menu;
    long allowed = CCM_INSERTIONALLOWED_TOP;
    for (const auto& menus : {snapIn.menus(), view->menus()})
    {
        EXPECT_EQ(E_POINTER, menus->AddMenuItems(nullptr, &menu, &allowed));
        EXPECT_EQ(E_POINTER, menus->AddMenuItems(snapIn.object().Get(), nullptr, &allowed));
        EXPECT_EQ(E_POINTER, menus->AddMenuItems(snapIn.object().Get(), &menu, nullptr));
        EXPECT_EQ(E_POINTER, menus->Command(1002, nullptr));
    }
    EXPECT_EQ(S_OK, view->bars()->SetControlbar(nullptr));
    EXPECT_EQ(E_POINTER, view->bars()->ControlbarNotify(MMCN_SELECT, 0, 0));
    EXPECT_EQ(E_POINTER, view->bars()->ControlbarNotify(MMCN_BTN_CLICK, 0, 1002));
}

TEST_F(Misuse, theNumbersThatStandForNoDataObject)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    for (const LONG_PTR number : {0, -1, -2, -3})
    {
        auto* const special = reinterpret_cast<IDataObject*>(number);
        for (const MMC_NOTIFY_TYPE event : handled)
        {
            EXPECT_EQ(E_POINTER, view->component->Notify(special, event, 0, 0));
        }
        EXPECT_EQ(E_POINTER, view->bars()->ControlbarNotify(MMCN_SELECT, 0, number));
        EXPECT_EQ(E_POINTER, view->menus()->Command(1000, special));
        EXPECT_EQ(E_POINTER, view->component->CompareObjects(special, special));
    }
}

TEST_F(Misuse, dataObjectsOfAnotherSnapIn)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    DataObjectDouble foreign;
    MenuDouble menu;
    long allowed = CCM_INSERTIONALLOWED_TOP;
    for (const MMC_NOTIFY_TYPE event : handled)
    {
        EXPECT_EQ(E_UNEXPECTED, view->component->Notify(&foreign, event, 0, 0));
        EXPECT_EQ(E_UNEXPECTED, snapIn.data->Notify(&foreign, event, 0, 0));
    }
    EXPECT_EQ(E_UNEXPECTED, view->bars()->ControlbarNotify(MMCN_SELECT, 0, reinterpret_cast<LPARAM>(&foreign)));
    EXPECT_EQ(E_UNEXPECTED, view->bars()->ControlbarNotify(MMCN_BTN_CLICK, reinterpret_cast<LPARAM>(&foreign), 1002));
    EXPECT_EQ(E_UNEXPECTED, view->menus()->AddMenuItems(&foreign, &menu, &allowed));
    EXPECT_EQ(E_UNEXPECTED, view->menus()->Command(1002, &foreign));
    EXPECT_EQ(E_UNEXPECTED, snapIn.data->CompareObjects(&foreign, snapIn.object().Get()));
}

TEST_F(Misuse, cookiesThatNameNothing)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const MMC_COOKIE log = snapIn.node(L"Log").lParam;
    for (const MMC_COOKIE cookie :
         std::initializer_list<MMC_COOKIE>{1, -1, -3, log ^ (1 << 30), log ^ (MMC_COOKIE{1} << 40), 0x7FFFFFFFFFFFFFFF})
    {
        IDataObject* object = reinterpret_cast<IDataObject*>(&snapIn);
        EXPECT_EQ(E_INVALIDARG, snapIn.data->QueryDataObject(cookie, CCT_SCOPE, &object));
        EXPECT_EQ(nullptr, object);
        EXPECT_EQ(E_INVALIDARG, view->component->QueryDataObject(cookie, CCT_RESULT, &object));
        SCOPEDATAITEM node{};
        node.mask = SDI_STR;
        node.lParam = cookie;
        EXPECT_EQ(E_INVALIDARG, snapIn.data->GetDisplayInfo(&node));
        RESULTDATAITEM row{};
        row.mask = RDI_STR;
        row.lParam = cookie;
        EXPECT_EQ(E_INVALIDARG, view->component->GetDisplayInfo(&row));
        LPOLESTR type = nullptr;
        long options = 0;
        EXPECT_EQ(E_INVALIDARG, view->component->GetResultViewType(cookie, &type, &options));
    }
}

TEST_F(Misuse, callsBeforeInitializeAndAfterDestroyAreUnexpected)
{
    BareSnapIn snapIn(false);
    ComPtr<IComponent> component;
    ASSERT_EQ(S_OK, snapIn.data->CreateComponent(&component));
    const auto object = snapIn.object();
    const auto refused = [&]
    {
        for (const MMC_NOTIFY_TYPE event : handled)
        {
            EXPECT_EQ(E_UNEXPECTED, component->Notify(object.Get(), event, 1, 1)) << event;
            EXPECT_EQ(E_UNEXPECTED, snapIn.data->Notify(object.Get(), event, 1, 1)) << event;
        }
        ComPtr<IExtendContextMenu> menus;
        component.As(&menus);
        EXPECT_EQ(E_UNEXPECTED, menus->Command(1002, object.Get()));
        EXPECT_EQ(E_UNEXPECTED, snapIn.menus()->Command(1002, object.Get()));
        ComPtr<IDataObject> several;
        EXPECT_EQ(E_UNEXPECTED, component->QueryDataObject(MMC_MULTI_SELECT_COOKIE, CCT_RESULT, &several));
        ComPtr<IExtendControlbar> bars;
        component.As(&bars);
        EXPECT_EQ(E_UNEXPECTED, bars->ControlbarNotify(MMCN_SELECT, 0, reinterpret_cast<LPARAM>(object.Get())));
    };
    refused();
    ConsoleDouble console;
    ASSERT_EQ(S_OK, snapIn.data->Initialize(&snapIn.console));
    ASSERT_EQ(S_OK, component->Initialize(&console));
    EXPECT_EQ(S_OK, component->Notify(object.Get(), MMCN_SHOW, TRUE, 1));
    EXPECT_EQ(S_OK, component->Destroy(0));
    EXPECT_EQ(S_OK, snapIn.data->Destroy());
    refused();
    EXPECT_EQ(S_OK, component->Destroy(0)) << "again";
    EXPECT_EQ(S_OK, snapIn.data->Destroy()) << "again";
}

TEST_F(Misuse, initializeAgainTakesTheNewConsole)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    ConsoleDouble second;
    EXPECT_EQ(S_OK, snapIn.data->Initialize(&second));
    EXPECT_EQ(0, snapIn.console.references());
    EXPECT_EQ(S_OK, view->component->Initialize(&second));
    EXPECT_EQ(0, view->console.references());
    view->component->Destroy(0);
    snapIn.data->Destroy();
    EXPECT_EQ(0, second.references());
}

TEST_F(Misuse, notificationsInEveryOrderOfTwo)
{
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const ComPtr<IDataObject> objects[] = {snapIn.object(), snapIn.object(L"About KV Tessaro"), snapIn.object(L"Log")};
    for (const MMC_NOTIFY_TYPE first : handled)
    {
        for (const MMC_NOTIFY_TYPE second : handled)
        {
            for (const auto& object : objects)
            {
                // The argument of this one is a pointer.
                const auto argument = [](MMC_NOTIFY_TYPE event) { return event == MMCN_ADD_IMAGES ? 0 : 1; };
                EXPECT_NO_THROW(view->component->Notify(object.Get(), first, argument(first), 5));
                EXPECT_NO_THROW(view->component->Notify(object.Get(), second, argument(second), 5));
            }
        }
    }
    // It still does its work.
    view->console.results.rows.clear();
    EXPECT_EQ(S_OK, view->component->Notify(objects[1].Get(), MMCN_SHOW, TRUE, 5));
    EXPECT_EQ(4u, view->console.results.rows.size());
}

TEST_F(Misuse, releaseWithoutDestroyLeavesNothing)
{
    ConsoleDouble console;
    {
        ComPtr<IComponentData> data;
        CoCreateInstance(snapInClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(data.GetAddressOf()));
        ASSERT_EQ(S_OK, data->Initialize(&console));
        ComPtr<IComponent> component;
        ASSERT_EQ(S_OK, data->CreateComponent(&component));
        ASSERT_EQ(S_OK, component->Initialize(&console));
        ComPtr<IDataObject> object;
        ASSERT_EQ(S_OK, data->QueryDataObject(0, CCT_SCOPE, &object));
        EXPECT_EQ(S_OK, component->Notify(object.Get(), MMCN_SHOW, TRUE, 1));
    }
    EXPECT_EQ(0, console.references());
    EXPECT_EQ(S_OK, canUnloadNow());
}

TEST_F(Misuse, rowsOutliveTheirTreeInAViewThatIsNotDestroyed)
{
    BareSnapIn snapIn;
    auto view = snapIn.makeView();
    view->component->Notify(snapIn.object(L"About KV Tessaro").Get(), MMCN_SHOW, TRUE, 1);
    snapIn.data->Destroy();
    snapIn.data.Reset();
    EXPECT_EQ(L"Build Date", view->cell(view->console.results.rows.back().lParam, 0));
}

} // namespace
} // namespace Acceptance
