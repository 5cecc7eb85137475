#include "Object.h"

namespace Foreign
{

namespace
{

// Lives in static memory: it counts as no object.
class Factory final : public IClassFactory
{
  public:
    explicit Factory(IUnknown* (*make)()) : m_make(make) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool known = id == __uuidof(IUnknown) || id == __uuidof(IClassFactory);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        *object = nullptr;
        if (outer != nullptr)
        {
            return CLASS_E_NOAGGREGATION;
        }
        IUnknown* const made = m_make();
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    IUnknown* (*m_make)();
};

Factory theSnapIns(&makeComponentData);
Factory theAbouts(&makeAbout);
Settings theSettings;

} // namespace

Settings& settings()
{
    return theSettings;
}

void crash()
{
    int* volatile nowhere = reinterpret_cast<int*>(0x1234);
    *nowhere = 1;
}

} // namespace Foreign

extern "C" Foreign::Settings* foreignSnapInSettings()
{
    return &Foreign::settings();
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID id, LPVOID* object)
{
    *object = nullptr;
    if (clsid == Foreign::snapInClass)
    {
        return Foreign::theSnapIns.QueryInterface(id, object);
    }
    return clsid == Foreign::aboutClass ? Foreign::theAbouts.QueryInterface(id, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow()
{
    return Foreign::settings().liveObjects == 0 ? S_OK : S_FALSE;
}
