#include "importedLibraries.h"

namespace Bench
{

std::vector<const char*> importedLibraries(HMODULE module)
{
    const char* const base = reinterpret_cast<const char*>(module);
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos.e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::vector<const char*> names;
    // The table ends with an entry without a name.
    for (const auto* entry = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
         entry->Name != 0; ++entry)
    {
        names.push_back(base + entry->Name);
    }
    return names;
}

} // namespace Bench
