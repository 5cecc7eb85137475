#include "kit/canUnloadNow.h"

namespace Acceptance
{

HRESULT canUnloadNow()
{
    const HMODULE library = GetModuleHandleW(L"TMgmt.dll");
    if (!library)
    {
        return S_OK;
    }
    const FARPROC function = GetProcAddress(library, "DllCanUnloadNow");
    return reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(function))();
}

} // namespace Acceptance
