#include <windows.h>

#include <olectl.h>

#include "objectMap.h"
#include "platform/com.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/snapin/Registrar.h"
#include "tmgmt/snapin/TypeLibrary.h"
#include "tmgmt/snapin/guard.h"

namespace
{

using namespace TMgmt;

constexpr wchar_t applicationId[] = L"{8137C807-77DB-4E83-AFE3-47F4A33D4D48}";

// The scripts' texts are not the user's: they are read in the system's locale, whatever the thread's own is.
class SystemLocale
{
  public:
    SystemLocale() noexcept : m_former(GetThreadLocale()) { SetThreadLocale(LOCALE_SYSTEM_DEFAULT); }
    SystemLocale(const SystemLocale&) = delete;
    SystemLocale& operator=(const SystemLocale&) = delete;
    ~SystemLocale() { SetThreadLocale(m_former); }

  private:
    LCID m_former;
};

// The first step that fails ends it; what was done before stays done.
void runRegistration(Registration registration)
{
    const SystemLocale locale;
    Registrar registrar;
    registrar.replace(L"APPID", applicationId);
    registrar.run(IDR_APPLICATION_SCRIPT, registration);
    for (const ObjectMapEntry& entry : objectMap())
    {
        registrar.run(entry.script, registration);
    }
    registerTypeLibrary(registration);
}

} // namespace

STDAPI DllCanUnloadNow()
{
    return Module::instance().canUnload() ? S_OK : S_FALSE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!object)
            {
                return E_POINTER;
            }
            *object = nullptr;
            for (const ObjectMapEntry& entry : objectMap())
            {
                if (entry.classId == classId)
                {
                    return platform::takeReference(new ClassFactory(entry.create))->QueryInterface(iid, object);
                }
            }
            return CLASS_E_CLASSNOTAVAILABLE;
        });
}

STDAPI DllRegisterServer()
{
    return guard(
        []() -> HRESULT
        {
            runRegistration(Registration::add);
            return S_OK;
        });
}

STDAPI DllUnregisterServer()
{
    return guard(
        []() -> HRESULT
        {
            runRegistration(Registration::remove);
            return S_OK;
        });
}
