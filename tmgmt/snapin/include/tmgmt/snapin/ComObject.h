#pragma once

#include <windows.h>

#include <unknwn.h>

#include <new>

#include "tmgmt/snapin/Module.h"

namespace TMgmt
{

// A COM object that offers the interfaces named. Counts its references, keeps the module loaded while it lives and
// deletes itself with the last reference; it is born with one, which belongs to whoever made it.
template <class... Interfaces>
class ComObject : public Interfaces...
{
  public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
        {
            return E_POINTER;
        }
        *object = find(iid);
        if (!*object)
        {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_references)); }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0)
        {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

  protected:
    ComObject() { Module::instance().objectBorn(); }
    virtual ~ComObject() { Module::instance().objectGone(); }

  private:
    void* find(REFIID iid) noexcept
    {
        void* found = nullptr;
        if (iid == __uuidof(IUnknown))
        {
            found = firstInterface<Interfaces...>();
        }
        (void)((iid == __uuidof(Interfaces) && (found = static_cast<Interfaces*>(this))) || ...);
        return found;
    }

    template <class First, class...>
    First* firstInterface() noexcept
    {
        return this;
    }

    LONG m_references = 1;
};

} // namespace TMgmt
