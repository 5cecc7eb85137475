#pragma once

#include "CallGuard.h"
#include "ConsoleObject.h"
#include "DataObject.h"
#include "HostState.h"
#include "ImageMap.h"
#include "StringTable.h"
#include "console/host/SnapIn.h"
#include "describe.h"

#include <wrl/client.h>

#include <string>

namespace Console
{

// What stands behind a SnapIn: its component data, its private console object, and the way in which the console
// calls it.
class Instance
{
  public:
    Instance(HostState& host, const CLSID& clsid);
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;
    ~Instance();

    HostState& host() const { return m_host; }
    const CLSID& clsid() const { return m_clsid; }
    unsigned number() const { return m_number; }
    const std::wstring& name() const { return m_name; }
    NodeId root() const { return m_root; }
    SnapIn::State state() const { return m_state; }
    bool ready() const { return m_state == SnapIn::State::ready; }
    const std::wstring& problem() const { return m_problem; }
    IComponentData* data() const { return m_data.Get(); }
    ImageMap& scopeImages() { return m_scopeImages; }
    StringTable& strings() { return m_strings; }

    // Creates and initialises the component data. False when it is not ready afterwards.
    bool load();
    // Destroys it; nothing is called in it any more. Its nodes go.
    void unload();

    // Sends EXPANDSYNC and EXPAND for a node, once in its life. False when the instance is not ready or the node gone.
    bool expand(NodeId node);

    HRESULT notify(LPDATAOBJECT object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param);
    // The data object of a node; empty when the snap-in gives none.
    DataObject dataObject(NodeId node);
    std::wstring nodeText(NodeId node);
    // Index into the host's scope images, asking the snap-in where it wants to be asked; -1 for none.
    int nodeImage(NodeId node, bool open);

    // Calls the snap-in. Arguments lists the arguments for the trace, body makes the call and may copy what comes
    // back. What the body throws or faults with is contained: E_FAIL comes back, and after a fault the instance is
    // dead. A dead instance is not called at all (RPC_E_DISCONNECTED).
    template <class Arguments, class Body>
    HRESULT call(unsigned view, const wchar_t* method, Arguments&& arguments, Body&& body)
    {
        if (m_state == SnapIn::State::dead)
        {
            return RPC_E_DISCONNECTED;
        }
        const HostState::Operation operation(m_host);
        const HostState::Depths depths = m_host.depths;
        if (m_host.trace() != nullptr)
        {
            enter(view, method, arguments());
        }
        HRESULT result = E_FAIL;
        const GuardOutcome outcome = guarded([&] { result = body(); });
        m_host.depths = depths;
        if (outcome.kind != GuardOutcome::Kind::returned)
        {
            result = E_FAIL;
            contain(method, outcome);
        }
        if (m_host.trace() != nullptr)
        {
            leave(view, method, result);
        }
        return result;
    }

    // call on another interface of one of the snap-in's objects. E_NOINTERFACE when it has none such; that is not
    // traced.
    template <class Interface, class Arguments, class Body>
    HRESULT callOn(unsigned view, IUnknown* object, const wchar_t* method, Arguments&& arguments, Body&& body)
    {
        Interface* found = nullptr;
        if (m_state != SnapIn::State::ready ||
            FAILED(query(object, __uuidof(Interface), reinterpret_cast<void**>(&found))))
        {
            return E_NOINTERFACE;
        }
        return call(view, method, arguments,
                    [&]
                    {
                        const HRESULT result = body(*found);
                        found->Release();
                        return result;
                    });
    }

  private:
    HRESULT query(IUnknown* object, REFIID id, void** found);
    void nameStaticNode();
    bool fail(const std::wstring& reason);
    void changed();
    void enter(unsigned view, const wchar_t* method, std::wstring arguments);
    void leave(unsigned view, const wchar_t* method, HRESULT result);
    void contain(const wchar_t* method, const GuardOutcome& outcome);

    HostState& m_host;
    CLSID m_clsid;
    unsigned m_number;
    std::wstring m_name;
    NodeId m_root = NodeId::none;
    SnapIn::State m_state = SnapIn::State::notLoaded;
    std::wstring m_problem;
    ImageMap m_scopeImages;
    StringTable m_strings;
    Microsoft::WRL::ComPtr<IComponentData> m_data;
    Microsoft::WRL::ComPtr<ConsoleObject> m_console;
};

} // namespace Console
