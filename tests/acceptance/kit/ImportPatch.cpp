#include "kit/ImportPatch.h"

#include <stdexcept>
#include <string>

namespace Acceptance
{
namespace
{

// Where the loader put the address of that function for this module.
void** findImport(HMODULE module, const char* name)
{
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; library->Name != 0; ++library)
    {
        const auto* wanted = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* place = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; wanted->u1.AddressOfData != 0; ++wanted, ++place)
        {
            const auto* const import = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData);
            if (!IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal) && std::string(name) == import->Name)
            {
                return place;
            }
        }
    }
    throw std::runtime_error(std::string("the module does not import ") + name);
}

} // namespace

ImportPatch::ImportPatch(const char* name, void* replacement, const wchar_t* module)
{
    if (module)
    {
        m_module.reset(LoadLibraryW(module));
    }
    else
    {
        GetModuleHandleExW(0, nullptr, m_module.put());
    }
    if (!m_module)
    {
        throw std::runtime_error("the module cannot be loaded");
    }
    m_place = findImport(m_module.get(), name);
    m_former = *m_place;
    write(replacement);
}

ImportPatch::~ImportPatch()
{
    write(m_former);
}

void ImportPatch::write(void* function) const
{
    DWORD protection = 0;
    VirtualProtect(m_place, sizeof *m_place, PAGE_READWRITE, &protection);
    *m_place = function;
    VirtualProtect(m_place, sizeof *m_place, protection, &protection);
}

} // namespace Acceptance
