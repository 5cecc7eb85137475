#include "tmgmt/ui/moduleResources.h"

// The linker puts this symbol where the module is loaded, which is what an HINSTANCE is.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace TMgmt
{

HINSTANCE moduleInstance() noexcept
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

const platform::VisualStyles& moduleStyles() noexcept
{
    static const platform::VisualStyles styles(moduleInstance());
    return styles;
}

std::wstring loadText(UINT id)
{
    // With no buffer LoadStringW gives a pointer into the resource itself, so that no length is guessed.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(moduleInstance(), id, reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<std::size_t>(length)) : std::wstring();
}

} // namespace TMgmt
