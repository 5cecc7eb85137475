#pragma once

#include "frame/doubles/ConsoleDouble.h"
#include "frame/doubles/ControlbarDouble.h"
#include "frame/doubles/MenuDouble.h"
#include "kit/canUnloadNow.h"
#include "platform/mmc.h"

#include <wrl/client.h>

#include <memory>
#include <string>

namespace Acceptance
{

// The plug-in's objects in the hands of the test itself, which plays the console: for calls that no console makes and
// for looking at every argument. Made through COM from the registered library.
class BareSnapIn
{
  public:
    // One view of the test's: a component with its own console object.
    struct View
    {
        ~View();

        ConsoleDouble console;
        ControlbarDouble controlbar;
        Microsoft::WRL::ComPtr<IComponent> component;

        Microsoft::WRL::ComPtr<IExtendControlbar> bars() const;
        Microsoft::WRL::ComPtr<IExtendContextMenu> menus() const;
        Microsoft::WRL::ComPtr<IDataObject> object(MMC_COOKIE cookie, DATA_OBJECT_TYPES type = CCT_RESULT) const;
        std::wstring cell(MMC_COOKIE cookie, int column) const;
    };

    static constexpr HSCOPEITEM rootHandle = 0x7000000001;

    // initialize: whether the component data has met its console already.
    explicit BareSnapIn(bool initialize = true);
    BareSnapIn(const BareSnapIn&) = delete;
    BareSnapIn& operator=(const BareSnapIn&) = delete;
    ~BareSnapIn();

    std::unique_ptr<View> makeView();

    // The node below the root with this path, as L"Engine Settings\\AFP Encoder"; expands what is on the way. The
    // record is as the console has it. Throws std::runtime_error when there is none.
    SCOPEDATAITEM node(const std::wstring& path);
    Microsoft::WRL::ComPtr<IDataObject> object(MMC_COOKIE cookie = 0, DATA_OBJECT_TYPES type = CCT_SCOPE) const;
    Microsoft::WRL::ComPtr<IDataObject> object(const std::wstring& path);
    std::wstring displayName(MMC_COOKIE cookie) const;
    HRESULT expand(MMC_COOKIE cookie, HSCOPEITEM handle, bool expanding = true) const;
    Microsoft::WRL::ComPtr<IExtendContextMenu> menus() const;

    ConsoleDouble console;
    Microsoft::WRL::ComPtr<IComponentData> data;
};

} // namespace Acceptance
