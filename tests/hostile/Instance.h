#pragma once

#include "HostileBars.h"
#include "HostileConsole.h"

#include <wrl/client.h>

#include <memory>
#include <string>
#include <vector>

namespace Hostile
{

// One view of the console: a component with what the console gives it.
struct View
{
    View(Whim& whim, HWND frame) : console(whim, frame), controlbar(whim) {}
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    // Takes the component down in the console's order.
    ~View();

    template <class Interface>
    Microsoft::WRL::ComPtr<Interface> as() const
    {
        Microsoft::WRL::ComPtr<Interface> found;
        component.As(&found);
        return found;
    }

    HostileConsole console;
    HostileControlbar controlbar;
    Microsoft::WRL::ComPtr<IComponent> component;
};

// The plug-in in the console: its component data and its views.
class Instance
{
  public:
    static constexpr HSCOPEITEM rootHandle = 0x7100000001;

    Instance(Whim& whim, HWND frame);
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;
    // Takes the views down and then the component data.
    ~Instance();

    // One more view; nothing when the plug-in refuses.
    std::shared_ptr<View> addView();

    // Expands every node of the tree.
    void expandAll();
    // The node with this path below the root, as L"Engine Settings\\AFP Encoder"; it is in the tree already. Throws
    // std::runtime_error.
    HSCOPEITEM find(const std::wstring& path) const;
    MMC_COOKIE cookieOf(HSCOPEITEM handle) const;
    // Null when the plug-in has none.
    Microsoft::WRL::ComPtr<IDataObject> object(MMC_COOKIE cookie, DATA_OBJECT_TYPES type = CCT_SCOPE) const;

    // Selects a node in a view as the console does: pictures, list, texts, verbs, toolbar.
    void show(View& view, HSCOPEITEM handle) const;
    // And another one instead.
    void leave(View& view, HSCOPEITEM handle) const;

    HostileConsole console;
    Microsoft::WRL::ComPtr<IComponentData> data;
    std::vector<std::shared_ptr<View>> views;

  private:
    void expand(HSCOPEITEM handle) const;
    std::vector<HSCOPEITEM> childrenOf(HSCOPEITEM handle) const;
    std::wstring nameOf(MMC_COOKIE cookie) const;

    Whim& m_whim;
    HWND m_frame;
};

} // namespace Hostile
