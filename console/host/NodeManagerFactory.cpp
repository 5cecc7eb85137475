#include "NodeManagerFactory.h"

#include "ConsoleObject.h"

#include <wrl/client.h>

namespace Console
{

using Microsoft::WRL::ComPtr;

namespace
{

class NodeManagerFactory final : public Face<IClassFactory>
{
  public:
    explicit NodeManagerFactory(HostState& host) : Face({&host}, L"the node manager's class factory") {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        return answer(
            L"IClassFactory::CreateInstance", [&] { return listOf(L"riid", static_cast<const GUID&>(id)); },
            [&]
            {
                if (object == nullptr)
                {
                    return E_POINTER;
                }
                *object = nullptr;
                if (outer != nullptr)
                {
                    return CLASS_E_NOAGGREGATION;
                }
                const ComPtr<ConsoleObject> made(new ConsoleObject(owner(), nullptr));
                return made->QueryInterface(id, object);
            });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

} // namespace

NodeManagerRegistration::NodeManagerRegistration(HostState& host)
{
    const ComPtr<NodeManagerFactory> factory(new NodeManagerFactory(host));
    CoRegisterClassObject(CLSID_NodeManager, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie);
}

NodeManagerRegistration::~NodeManagerRegistration()
{
    if (m_cookie != 0)
    {
        CoRevokeClassObject(m_cookie);
    }
}

} // namespace Console
