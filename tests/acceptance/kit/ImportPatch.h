#pragma once

#include <windows.h>

#include "platform/handles.h"

namespace Acceptance
{

// While it lives, a module calls another function in place of one that it imports: the way to failures of Windows that
// cannot be had for real. The module has to be loaded, and stays so as long as patches live.
class ImportPatch
{
  public:
    // module is a library's name, or null for the program itself. Throws std::runtime_error when the module does not
    // import that function.
    template <class Function>
    ImportPatch(const char* name, Function* replacement, const wchar_t* module = L"TMgmt.dll")
        : ImportPatch(name, reinterpret_cast<void*>(replacement), module)
    {
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch();

    // What the module called before.
    void* former() const { return m_former; }

  private:
    ImportPatch(const char* name, void* replacement, const wchar_t* module);

    void write(void* function) const;

    platform::Library m_module;
    void** m_place;
    void* m_former;
};

} // namespace Acceptance
