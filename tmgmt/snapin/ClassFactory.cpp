#include "tmgmt/snapin/ClassFactory.h"

#include "platform/com.h"

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
            return platform::takeReference(m_create())->QueryInterface(iid, object);
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
