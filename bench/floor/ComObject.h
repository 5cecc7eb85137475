#pragma once

#include "platform/mmc.h"

namespace Bench
{

// A COM object with one interface.
template <class Interface>
class ComObject : public Interface
{
  public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool known = id == __uuidof(IUnknown) || id == __uuidof(Interface);
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (known)
        {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
        {
            delete this;
        }
        return left;
    }

  protected:
    virtual ~ComObject() = default;

  private:
    ULONG m_references = 1;
};

} // namespace Bench
