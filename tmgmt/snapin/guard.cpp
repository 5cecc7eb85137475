#include "tmgmt/snapin/guard.h"

#include <new>

#include "brimlow/system/Exception.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

HRESULT reportCurrentException() noexcept
{
    try
    {
        throw;
    }
    catch (const ComError& error)
    {
        return error.result();
    }
    catch (const Core::Exception& exception)
    {
        showMessage(nullptr, exception.getMessage().c_str(), productCaption, MB_OK | MB_ICONERROR);
        return E_FAIL;
    }
    catch (const std::bad_alloc&)
    {
        return E_OUTOFMEMORY;
    }
    catch (const std::exception& exception)
    {
        try
        {
            Core::Exception(Core::String::fromUtf8(exception.what())).logError();
        }
        catch (...)
        {
            OutputDebugStringA(exception.what());
        }
        return E_UNEXPECTED;
    }
    catch (...)
    {
        OutputDebugStringW(L"KV Tessaro management: an exception of no known kind\n");
        return E_UNEXPECTED;
    }
}

} // namespace TMgmt
