#include "tmgmt/snapin/ClassFactory.h"

#include <wrl/client.h>

#include "tmgmt/snapin/guard.h"

namespace TMgmt
{

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!object)
            {
                return E_POINTER;
            }
            *object = nullptr;
            if (outer)
            {
                return CLASS_E_NOAGGREGATION;
            }
            Microsoft::WRL::ComPtr<IUnknown> made;
            made.Attach(m_create());
            return made->QueryInterface(iid, object);
        });
}

HRESULT ClassFactory::LockServer(BOOL lock)
{
    if (lock)
    {
        Module::instance().objectBorn();
    }
    else
    {
        Module::instance().objectGone();
    }
    return S_OK;
}

} // namespace TMgmt
