#include "tmgmt/snapin/modulePath.h"

#include "tmgmt/snapin/guard.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

std::wstring modulePath()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;)
    {
        const DWORD length = GetModuleFileNameW(moduleInstance(), path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
        {
            throw ComError(HRESULT_FROM_WIN32(GetLastError()));
        }
        if (length < path.size())
        {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

} // namespace TMgmt
