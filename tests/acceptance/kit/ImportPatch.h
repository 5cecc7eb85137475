#pragma once

#include <windows.h>

namespace Acceptance
{

// While it lives, TMgmt.dll calls another function in place of one that it imports: the way to failures of Windows that
// cannot be had for real. The library has to be loaded, and stays so as long as patches live.
class ImportPatch
{
  public:
    // Throws std::runtime_error when the library does not import that name.
    template <class Function>
    ImportPatch(const char* name, Function* replacement) : ImportPatch(name, reinterpret_cast<void*>(replacement))
    {
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch();

    // What the library called before.
    void* former() const { return m_former; }

  private:
    ImportPatch(const char* name, void* replacement);

    void write(void* function) const;

    HMODULE m_module;
    void** m_place;
    void* m_former;
};

} // namespace Acceptance
