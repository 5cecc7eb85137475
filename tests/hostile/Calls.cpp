#include "Mischief.h"

#include "kit/ServerFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>

using Microsoft::WRL::ComPtr;

// The calls to component data and views, each with whatever arguments the console's contract lets through, and null
// where a pointer goes out.
namespace Hostile
{
namespace
{

constexpr std::size_t mostViews = 3;
constexpr std::size_t mostInstances = 2;
constexpr std::size_t mostKept = 16;

struct Event
{
    MMC_NOTIFY_TYPE number;
    const char* name;
};

// Those that nodes have handlers for.
constexpr std::array events{Event{MMCN_SHOW, "MMCN_SHOW"},
                            Event{MMCN_EXPAND, "MMCN_EXPAND"},
                            Event{MMCN_ADD_IMAGES, "MMCN_ADD_IMAGES"},
                            Event{MMCN_DBLCLICK, "MMCN_DBLCLICK"},
                            Event{MMCN_SELECT, "MMCN_SELECT"},
                            Event{MMCN_DELETE, "MMCN_DELETE"},
                            Event{MMCN_VIEW_CHANGE, "MMCN_VIEW_CHANGE"},
                            Event{MMCN_REFRESH, "MMCN_REFRESH"},
                            Event{MMCN_BTN_CLICK, "MMCN_BTN_CLICK"}};

constexpr std::array<long, 26> commands{1000, 1002, 1003, 1012, 1013, 1015, 1017, 1022, 1038, 1041, 1042, 1044, 1048,
                                        1052, 1053, 1054, 1055, 1056, 1057, 1058, 1060, 1062, 1064, 1065, 1066, 1068};

} // namespace

const std::vector<Mischief::Kind>& Mischief::kinds()
{
    static const std::vector<Kind> all{
        {"IComponentData::Initialize", 3, &Mischief::initializeData},
        {"IComponentData::CreateComponent", 8, &Mischief::createComponent},
        {"IComponentData::Notify", 220, &Mischief::notifyData},
        {"IComponentData::Destroy", 2, &Mischief::destroyData},
        {"IComponentData::QueryDataObject", 40, &Mischief::queryObjectOfData},
        {"IComponentData::GetDisplayInfo", 40, &Mischief::displayScopeItem},
        {"IComponentData::CompareObjects", 25, &Mischief::compareInData},
        {"IExtendContextMenu::AddMenuItems of the data", 25, &Mischief::addMenuItemsOfData},
        {"IExtendContextMenu::Command to the data", 30, &Mischief::commandToData},
        {"IComponent::Initialize", 6, &Mischief::initializeView},
        {"IComponent::Notify", 280, &Mischief::notifyView},
        {"IComponent::Destroy", 4, &Mischief::destroyView},
        {"IComponent::QueryDataObject", 40, &Mischief::queryObjectOfView},
        {"IComponent::GetResultViewType", 30, &Mischief::resultViewType},
        {"IComponent::GetDisplayInfo", 50, &Mischief::displayRow},
        {"IComponent::CompareObjects", 25, &Mischief::compareInView},
        {"IExtendContextMenu::AddMenuItems of a view", 25, &Mischief::addMenuItemsOfView},
        {"IExtendContextMenu::Command to a view", 40, &Mischief::commandToView},
        {"IExtendControlbar::SetControlbar", 20, &Mischief::setControlbar},
        {"IExtendControlbar::ControlbarNotify", 50, &Mischief::controlbarNotify},
        {"IDataObject::GetData", 30, &Mischief::getData},
        {"IDataObject::GetDataHere", 30, &Mischief::getDataHere},
        {"IDataObject::QueryGetData", 25, &Mischief::queryGetData},
        {"IDataObject, the other methods", 15, &Mischief::otherDataMethods},
        {"QueryInterface", 25, &Mischief::queryInterface},
        {"ISnapinAbout", 15, &Mischief::about},
        {"IClassFactory", 10, &Mischief::classFactory},
        {"release of a view", 4, &Mischief::releaseView},
        {"release of the plug-in", 1, &Mischief::releaseInstance},
        {"a data object is kept", 20, &Mischief::keepObject},
        {"another program changes the server's files", 2, &Mischief::damageServer},
    };
    return all;
}

HRESULT Mischief::initializeData()
{
    const auto instance = anyInstance();
    return instance->data->Initialize(m_whim.oneIn(4) ? nullptr : instance->console.unknown());
}

HRESULT Mischief::createComponent()
{
    const auto instance = anyInstance();
    if (m_whim.oneIn(8))
    {
        return instance->data->CreateComponent(nullptr);
    }
    if (instance->views.size() >= mostViews)
    {
        return S_FALSE;
    }
    const auto view = instance->addView();
    wire(view->console, *instance, view.get());
    return S_OK;
}

HRESULT Mischief::notify(const char* receiver,
                         const std::function<HRESULT(IDataObject*, MMC_NOTIFY_TYPE, LPARAM, LPARAM)>& call,
                         Instance& instance, HostileConsole& console)
{
    Object owner;
    IDataObject* const object = anyObject(owner);
    if (m_whim.oneIn(8))
    {
        // All that a console has names for, and some more, without what goes with them.
        m_call = std::string(receiver) + "::Notify of another event";
        const auto number = static_cast<int>(0x8000 + m_whim.below(0x40));
        const bool isHandled =
            std::ranges::any_of(events, [number](const Event& event) { return event.number == number; });
        return call(object, static_cast<MMC_NOTIFY_TYPE>(isHandled ? 0 : number), 0, 0);
    }
    const Event& event = m_whim.oneOf(events);
    m_call = std::string(receiver) + "::Notify " + event.name;
    LPARAM arg = static_cast<LPARAM>(m_whim.below(2));
    LPARAM param = anyHandle(instance);
    switch (event.number)
    {
    case MMCN_ADD_IMAGES:
        arg = m_whim.oneIn(4) ? 0 : reinterpret_cast<LPARAM>(static_cast<IImageList*>(&console));
        break;
    case MMCN_SELECT:
        arg = MAKELONG(m_whim.below(2), m_whim.below(2));
        break;
    case MMCN_VIEW_CHANGE:
        arg = static_cast<LPARAM>(m_whim.below(0x10000));
        param = -static_cast<LPARAM>(m_whim.below(0x10000));
        break;
    case MMCN_BTN_CLICK:
        param = m_whim.oneIn(2) ? LPARAM{MMC_VERB_PROPERTIES} : static_cast<LPARAM>(m_whim.below(0x10000));
        break;
    default:
        break;
    }
    return call(object, event.number, arg, param);
}

HRESULT Mischief::notifyData()
{
    const auto instance = anyInstance();
    return notify(
        "IComponentData", [&](auto... arguments) { return instance->data->Notify(arguments...); }, *instance,
        instance->console);
}

HRESULT Mischief::notifyView()
{
    const Seat seat = anySeat();
    return notify(
        "IComponent", [&](auto... arguments) { return seat.view->component->Notify(arguments...); }, *seat.instance,
        seat.view->console);
}

HRESULT Mischief::destroyData()
{
    return anyInstance()->data->Destroy();
}

template <class Component>
HRESULT Mischief::queryObject(Component& component)
{
    const MMC_COOKIE cookie = anyCookie();
    const auto type = static_cast<DATA_OBJECT_TYPES>(0x8000 + m_whim.below(4));
    if (m_whim.oneIn(8))
    {
        return component.QueryDataObject(cookie, type, nullptr);
    }
    Object object;
    return component.QueryDataObject(cookie, type, &object);
}

HRESULT Mischief::queryObjectOfData()
{
    return queryObject(*anyInstance()->data.Get());
}

HRESULT Mischief::queryObjectOfView()
{
    const Seat seat = anySeat();
    return queryObject(*seat.view->component.Get());
}

HRESULT Mischief::displayScopeItem()
{
    SCOPEDATAITEM item{};
    item.mask = static_cast<DWORD>(m_whim.below(0x100));
    item.lParam = anyCookie();
    return anyInstance()->data->GetDisplayInfo(m_whim.oneIn(16) ? nullptr : &item);
}

template <class Component>
HRESULT Mischief::compare(Component& component)
{
    Object ownerOfFirst;
    Object ownerOfSecond;
    IDataObject* const first = anyObject(ownerOfFirst);
    return component.CompareObjects(first, anyObject(ownerOfSecond));
}

HRESULT Mischief::compareInData()
{
    return compare(*anyInstance()->data.Get());
}

HRESULT Mischief::compareInView()
{
    const Seat seat = anySeat();
    return compare(*seat.view->component.Get());
}

HRESULT Mischief::addMenuItems(IExtendContextMenu& menus)
{
    Object owner;
    IDataObject* const object = anyObject(owner);
    long allowed = static_cast<long>(m_whim.below(16));
    return menus.AddMenuItems(object, m_whim.oneIn(16) ? nullptr : &m_menu, m_whim.oneIn(16) ? nullptr : &allowed);
}

HRESULT Mischief::command(IExtendContextMenu& menus)
{
    Object owner;
    IDataObject* const object = anyObject(owner);
    const long number = m_whim.oneIn(8) ? static_cast<long>(m_whim.below(0x20000)) - 0x10000 : m_whim.oneOf(commands);
    return menus.Command(number, object);
}

HRESULT Mischief::addMenuItemsOfData()
{
    const auto instance = anyInstance();
    ComPtr<IExtendContextMenu> menus;
    instance->data.As(&menus);
    return addMenuItems(*menus.Get());
}

HRESULT Mischief::addMenuItemsOfView()
{
    const Seat seat = anySeat();
    return addMenuItems(*seat.view->as<IExtendContextMenu>().Get());
}

HRESULT Mischief::commandToData()
{
    const auto instance = anyInstance();
    ComPtr<IExtendContextMenu> menus;
    instance->data.As(&menus);
    return command(*menus.Get());
}

HRESULT Mischief::commandToView()
{
    const Seat seat = anySeat();
    return command(*seat.view->as<IExtendContextMenu>().Get());
}

HRESULT Mischief::initializeView()
{
    const Seat seat = anySeat();
    return seat.view->component->Initialize(m_whim.oneIn(4) ? nullptr : &seat.view->console);
}

HRESULT Mischief::destroyView()
{
    const Seat seat = anySeat();
    return seat.view->component->Destroy(static_cast<MMC_COOKIE>(m_whim.below(2)));
}

HRESULT Mischief::resultViewType()
{
    const Seat seat = anySeat();
    LPOLESTR type = nullptr;
    long options = 0;
    const HRESULT result = seat.view->component->GetResultViewType(anyCookie(), m_whim.oneIn(16) ? nullptr : &type,
                                                                   m_whim.oneIn(16) ? nullptr : &options);
    CoTaskMemFree(type);
    return result;
}

HRESULT Mischief::displayRow()
{
    const Seat seat = anySeat();
    RESULTDATAITEM item{};
    item.mask = static_cast<DWORD>(m_whim.below(0x100));
    item.bScopeItem = static_cast<BOOL>(m_whim.below(2));
    item.lParam = anyCookie();
    item.nCol = static_cast<int>(m_whim.below(12)) - 2;
    return seat.view->component->GetDisplayInfo(m_whim.oneIn(16) ? nullptr : &item);
}

HRESULT Mischief::setControlbar()
{
    const Seat seat = anySeat();
    return seat.view->as<IExtendControlbar>()->SetControlbar(m_whim.oneIn(3) ? nullptr : &seat.view->controlbar);
}

HRESULT Mischief::controlbarNotify()
{
    const Seat seat = anySeat();
    Object owner;
    const auto object = reinterpret_cast<LPARAM>(anyObject(owner));
    const auto bars = seat.view->as<IExtendControlbar>();
    switch (m_whim.below(3))
    {
    case 0:
        return bars->ControlbarNotify(MMCN_SELECT, MAKELONG(m_whim.below(2), m_whim.below(2)), object);
    case 1:
        return bars->ControlbarNotify(MMCN_BTN_CLICK, object,
                                      m_whim.oneIn(4) ? static_cast<LPARAM>(m_whim.below(0x10000))
                                                      : static_cast<LPARAM>(1002 + m_whim.below(2)));
    default:
    {
        // Every other event comes without an object.
        const auto number = static_cast<int>(0x8000 + m_whim.below(0x40));
        const bool hasObject = number == MMCN_SELECT || number == MMCN_BTN_CLICK;
        return bars->ControlbarNotify(static_cast<MMC_NOTIFY_TYPE>(hasObject ? MMCN_MENU_BTNCLICK : number), 0, 0);
    }
    }
}

HRESULT Mischief::releaseView()
{
    const Seat seat = anySeat();
    std::erase(seat.instance->views, seat.view);
    return S_OK;
}

HRESULT Mischief::releaseInstance()
{
    const auto instance = anyInstance();
    std::erase(m_instances, instance);
    while (m_instances.size() < mostInstances)
    {
        addInstance();
    }
    return S_OK;
}

HRESULT Mischief::keepObject()
{
    const auto object = anyInstance()->object(anyCookie());
    if (!object)
    {
        return S_FALSE;
    }
    if (m_kept.size() < mostKept)
    {
        m_kept.push_back(object);
    }
    else
    {
        m_whim.oneOf(m_kept) = object;
    }
    return S_OK;
}

HRESULT Mischief::damageServer()
{
    constexpr std::array files{L"TSvc.config", L"Common\\Config\\Fonts.config", L"Data\\HotFolders.db",
                               L"Data\\Tessaro.db", L"KeyStore\\KeyStore.p12"};
    const auto file = Acceptance::ServerFiles::folder() / m_whim.oneOf(files);
    std::error_code ignored;
    if (m_whim.oneIn(2))
    {
        std::filesystem::remove(file, ignored);
    }
    else
    {
        Acceptance::ServerFiles::write(file, "<configuration><appSettings><add key=\"half of it");
    }
    return S_OK;
}

} // namespace Hostile
