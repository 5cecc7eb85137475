#include "Failure.h"

#include <windows.h>

#include <exception>
#include <new>
#include <system_error>

namespace Console
{

namespace
{

std::wstring widen(const char* text)
{
    std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, -1, result.data(), static_cast<int>(result.size()));
    result.resize(result.empty() ? 0 : result.size() - 1);
    return result;
}

} // namespace

void throwLastError(const char* function)
{
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), function);
}

std::wstring describeFailure()
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        return L"There is not enough memory.";
    }
    catch (const std::exception& error)
    {
        return L"The console failed: " + widen(error.what());
    }
    catch (...)
    {
        return L"The console failed for an unknown reason.";
    }
}

void reportFailure() noexcept
{
    static bool showing = false;
    try
    {
        const std::wstring text = describeFailure();
        OutputDebugStringW((text + L"\n").c_str());
        if (!showing)
        {
            showing = true;
            MessageBoxW(nullptr, text.c_str(), L"TConsole", MB_ICONERROR | MB_TASKMODAL);
            showing = false;
        }
    }
    catch (...)
    {
        OutputDebugStringW(L"The console failed, and so did the report of it.\n");
    }
}

} // namespace Console
