#include "clipboardText.h"

#include "platform/handles.h"

#include <cstring>

namespace Console
{

namespace
{

// The text with its zero, in memory as the clipboard takes it; null without memory.
platform::GlobalMemory clipboardMemory(const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    // The clipboard takes movable memory only.
    platform::GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, size));
    if (void* const bytes = memory ? GlobalLock(memory.get()) : nullptr)
    {
        std::memcpy(bytes, text.c_str(), size);
        GlobalUnlock(memory.get());
        return memory;
    }
    return {};
}

} // namespace

void putOnClipboard(HWND owner, const std::wstring& text)
{
    platform::GlobalMemory memory = clipboardMemory(text);
    if (!memory || !OpenClipboard(owner))
    {
        MessageBeep(MB_ICONWARNING);
        return;
    }
    EmptyClipboard();
    if (SetClipboardData(CF_UNICODETEXT, memory.get()) != nullptr)
    {
        // The clipboard has it now.
        static_cast<void>(memory.release());
    }
    CloseClipboard();
}

} // namespace Console
