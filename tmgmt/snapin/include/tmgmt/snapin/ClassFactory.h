#pragma once

#include "tmgmt/snapin/ComObject.h"

namespace TMgmt
{

// Makes the objects of one class. The function gives a new object with one reference for the caller.
class ClassFactory : public ComObject<IClassFactory>
{
  public:
    using Create = IUnknown* (*)();

    explicit ClassFactory(Create create) noexcept : m_create(create) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

  private:
    Create m_create;
};

} // namespace TMgmt
