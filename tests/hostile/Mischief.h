#pragma once

#include "Instance.h"
#include "Server.h"
#include "WindowsAnswers.h"

#include "frame/doubles/DataObjectDouble.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Hostile
{

// A console that calls whatever it can with whatever it may have, in no order. What it does is settled by the seed.
class Mischief
{
  public:
    Mischief(std::uint32_t seed, HWND frame);
    Mischief(const Mischief&) = delete;
    Mischief& operator=(const Mischief&) = delete;
    ~Mischief();

    // One call. A result that no console may get fails the test.
    void step();
    // Everything as an orderly console has it: the server's files as at first, the tree expanded, every node shown.
    void settle();
    // Takes everything down: afterwards nothing of the plug-in is left.
    void end();

    // What is done to what: the call, or the notification, and the kind of node or of what is passed in its place.
    using Deed = std::pair<std::string, std::string>;
    const std::map<Deed, int>& deeds() const { return m_deeds; }
    // The call that is going on, for a report of a crash.
    std::string current() const;
    const WindowsAnswers& windows() const { return m_windows; }

  private:
    struct Kind
    {
        const char* name;
        std::size_t weight;
        HRESULT (Mischief::*run)();
    };
    // A view with its instance, kept for the length of a call whatever becomes of them meanwhile.
    struct Seat
    {
        std::shared_ptr<Instance> instance;
        std::shared_ptr<View> view;
    };
    using Object = Microsoft::WRL::ComPtr<IDataObject>;

    static const std::vector<Kind>& kinds();

    void addInstance();
    void wire(HostileConsole& console, Instance& instance, View* view);
    void learn(MMC_COOKIE cookie, IDataObject* object);
    void check(HRESULT result);

    std::shared_ptr<Instance> anyInstance();
    Seat anySeat();
    MMC_COOKIE liveCookie(std::size_t kind);
    MMC_COOKIE anyCookie();
    // What is passed as a data object; owned by somebody else where it is none of the plug-in's.
    IDataObject* anyObject(Object& owner);
    IDataObject* severalRows(Object& owner);
    IDataObject* composite();
    HSCOPEITEM anyHandle(const Instance& instance);
    HRESULT notify(const char* receiver,
                   const std::function<HRESULT(IDataObject*, MMC_NOTIFY_TYPE, LPARAM, LPARAM)>& call,
                   Instance& instance, HostileConsole& console);
    FORMATETC anyFormat();

    HRESULT initializeData();
    HRESULT createComponent();
    HRESULT notifyData();
    HRESULT destroyData();
    HRESULT queryObjectOfData();
    HRESULT displayScopeItem();
    HRESULT compareInData();
    HRESULT addMenuItemsOfData();
    HRESULT commandToData();
    HRESULT initializeView();
    HRESULT notifyView();
    HRESULT destroyView();
    HRESULT queryObjectOfView();
    HRESULT resultViewType();
    HRESULT displayRow();
    HRESULT compareInView();
    HRESULT addMenuItemsOfView();
    HRESULT commandToView();
    HRESULT addMenuItems(IExtendContextMenu& menus);
    HRESULT command(IExtendContextMenu& menus);
    template <class Component>
    HRESULT compare(Component& component);
    template <class Component>
    HRESULT queryObject(Component& component);
    HRESULT setControlbar();
    HRESULT controlbarNotify();
    HRESULT getData();
    HRESULT getDataHere();
    HRESULT queryGetData();
    HRESULT otherDataMethods();
    HRESULT queryInterface();
    HRESULT about();
    HRESULT classFactory();
    HRESULT releaseView();
    HRESULT releaseInstance();
    HRESULT keepObject();
    HRESULT damageServer();

    const std::uint32_t m_seed;
    Whim m_whim;
    HWND m_frame;
    Server m_server;
    WindowsAnswers m_windows;
    HostileMenu m_menu{m_whim};
    Acceptance::DataObjectDouble m_foreign;
    Acceptance::DataObjectDouble m_composite;
    std::vector<std::shared_ptr<Instance>> m_instances;
    // Data objects that the console keeps too long.
    std::vector<Object> m_kept;
    std::vector<std::vector<MMC_COOKIE>> m_live; // for each kind of node
    std::vector<MMC_COOKIE> m_stale;
    std::vector<MMC_COOKIE> m_new;
    std::map<Deed, int> m_deeds;
    // The current call, and what it is about.
    std::string m_call;
    const char* m_target = "";
    long m_step = 0;
    int m_depth = 0;
};

} // namespace Hostile
