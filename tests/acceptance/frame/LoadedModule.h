#pragma once

#include <windows.h>

#include <unknwn.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace Acceptance
{

// A library loaded by its path, not through COM, and its entry points called directly.
class LoadedModule
{
  public:
    explicit LoadedModule(const std::filesystem::path& file) : m_module(LoadLibraryW(file.c_str()))
    {
        if (!m_module)
        {
            throw std::runtime_error("cannot load " + file.string());
        }
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule() { FreeLibrary(m_module); }

    HMODULE handle() const { return m_module; }

    HRESULT registerServer() const { return call("DllRegisterServer"); }
    HRESULT unregisterServer() const { return call("DllUnregisterServer"); }
    HRESULT canUnloadNow() const { return call("DllCanUnloadNow"); }
    HRESULT getClassObject(REFCLSID classId, REFIID iid, void** object) const
    {
        using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
        return reinterpret_cast<Function>(find("DllGetClassObject"))(classId, iid, object);
    }

  private:
    void* find(const char* name) const { return reinterpret_cast<void*>(GetProcAddress(m_module, name)); }
    HRESULT call(const char* name) const { return reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(find(name))(); }

    HMODULE m_module;
};

} // namespace Acceptance
