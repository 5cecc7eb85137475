#pragma once

#include "ConsoleObject.h"
#include "ControlbarFace.h"
#include "DataObject.h"
#include "ImageMap.h"
#include "Instance.h"
#include "VerbStates.h"

#include <wrl/client.h>

#include <memory>

namespace Console
{

class ViewState;

// One instance's component in one view: the snap-in's IComponent and what the console keeps for it.
class Component
{
  public:
    // Creates and initialises it. Null when the snap-in has none to give.
    static std::unique_ptr<Component> create(ViewState& view, Instance& instance);

    Component(ViewState& view, Instance& instance);
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    // Takes the control bar away, destroys it, lets go of it.
    ~Component();

    ViewState& view() const { return m_view; }
    Instance& instance() const { return m_instance; }
    IComponent* get() const { return m_component.Get(); }
    VerbStates& verbs() { return m_verbs; }
    ImageMap& images() { return m_images; }
    ImageListFace& imageList() { return *m_imageList.Get(); }
    ConsoleVerbFace& consoleVerb() { return *m_consoleVerb.Get(); }
    ControlbarFace& controlbar() { return *m_controlbar.Get(); }

    HRESULT notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param);
    // The data object of one of its rows, or (MMC_MULTI_SELECT_COOKIE) of all selected rows.
    DataObject dataObject(MMC_COOKIE cookie);
    // Tells the snap-in's bars. Gives it the control bar first, when it has none yet.
    HRESULT notifyControlbar(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param);

    // Instance::call for this view.
    template <class Arguments, class Body>
    HRESULT call(const wchar_t* method, Arguments&& arguments, Body&& body)
    {
        return m_instance.call(viewNumber(), method, arguments, body);
    }

    // Calls another interface of the component. E_NOINTERFACE when it has none such.
    template <class Interface, class Arguments, class Body>
    HRESULT callOn(const wchar_t* method, Arguments&& arguments, Body&& body)
    {
        if (m_component == nullptr)
        {
            return E_UNEXPECTED;
        }
        return m_instance.callOn<Interface>(viewNumber(), m_component.Get(), method, arguments, body);
    }

  private:
    bool initialize();
    unsigned viewNumber() const;

    ViewState& m_view;
    Instance& m_instance;
    ImageMap m_images;
    VerbStates m_verbs;
    bool m_controlbarGiven = false;
    Microsoft::WRL::ComPtr<IComponent> m_component;
    Microsoft::WRL::ComPtr<ConsoleObject> m_console;
    Microsoft::WRL::ComPtr<ImageListFace> m_imageList;
    Microsoft::WRL::ComPtr<ConsoleVerbFace> m_consoleVerb;
    Microsoft::WRL::ComPtr<ControlbarFace> m_controlbar;
};

} // namespace Console
