#pragma once

#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

#include <string>

// The system's registrar (atl.dll), which runs registry scripts. No header of mingw-w64 has it.
struct IRegistrar : public IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE AddReplacement(LPCOLESTR key, LPCOLESTR item) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearReplacements() = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegisterSz(LPCOLESTR file, LPCOLESTR name, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregisterSz(LPCOLESTR file, LPCOLESTR name, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileRegister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileUnregister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringRegister(LPCOLESTR script) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringUnregister(LPCOLESTR script) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegister(LPCOLESTR file, UINT id, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregister(LPCOLESTR file, UINT id, LPCOLESTR type) = 0;
};

__CRT_UUID_DECL(IRegistrar, 0x44ec053b, 0x400f, 0x11d0, 0x9d, 0xcd, 0x00, 0xa0, 0xc9, 0x03, 0x91, 0xd3)

namespace TMgmt
{

enum class Registration
{
    add,
    remove
};

// Runs this module's registry scripts, resources of the type REGISTRY. %MODULE% in them stands for the module's path.
class Registrar
{
  public:
    // Throws ComError when the system has no registrar.
    Registrar();

    // From here on %name% stands for value.
    void replace(const wchar_t* name, const std::wstring& value);
    // Throws ComError.
    void run(UINT script, Registration registration);

  private:
    std::wstring m_module;
    Microsoft::WRL::ComPtr<IRegistrar> m_registrar;
};

} // namespace TMgmt
