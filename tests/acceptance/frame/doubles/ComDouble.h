#pragma once

#include "platform/mmc.h"

#include <gtest/gtest.h>

#include <typeinfo>

namespace Acceptance
{

// An interface of the console's, played by an object that belongs to the test. It outlives the plug-in's use of it: a
// reference that is left when it goes fails the test.
template <class Interface>
class ComDouble : public Interface
{
  public:
    ComDouble() = default;
    ComDouble(const ComDouble&) = delete;
    ComDouble& operator=(const ComDouble&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override
    {
        *object = nullptr;
        if (iid != __uuidof(IUnknown) && iid != __uuidof(Interface))
        {
            return E_NOINTERFACE;
        }
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++m_references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--m_references); }

    long references() const { return m_references; }

  protected:
    ~ComDouble() { EXPECT_EQ(0, m_references) << "references to " << typeid(Interface).name(); }

    // For what the plug-in has no business to call.
    static HRESULT uncalled(const char* method)
    {
        ADD_FAILURE() << "the plug-in calls " << typeid(Interface).name() << "::" << method;
        return E_NOTIMPL;
    }

  private:
    long m_references = 0;
};

} // namespace Acceptance
