#include "OutputStream.h"

#include "Utf8.h"

#include <algorithm>

namespace Console
{

namespace
{

constexpr std::size_t enoughToWrite = 1 << 16;
// WriteConsole refuses more than some 64 KiB at once.
constexpr std::size_t consoleChunk = 8192;

bool isHighSurrogate(wchar_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}

} // namespace

OutputStream::OutputStream(DWORD which) : m_handle(GetStdHandle(which))
{
    if (m_handle == nullptr || m_handle == INVALID_HANDLE_VALUE || GetFileType(m_handle) == FILE_TYPE_UNKNOWN)
    {
        // Fails harmlessly when the process is attached already, or when its caller has no console.
        AttachConsole(ATTACH_PARENT_PROCESS);
        m_opened.reset(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                   nullptr, OPEN_EXISTING, 0, nullptr));
        m_handle = m_opened ? m_opened.get() : nullptr;
    }
    DWORD mode = 0;
    m_console = m_handle != nullptr && GetConsoleMode(m_handle, &mode);
}

OutputStream::~OutputStream()
{
    flush();
}

void OutputStream::write(std::wstring_view text)
{
    m_pending += text;
    if (m_pending.size() >= enoughToWrite)
    {
        flush();
    }
}

bool OutputStream::flush()
{
    if (m_handle != nullptr && !m_pending.empty())
    {
        if (m_console)
        {
            writeToConsole(m_pending);
        }
        else
        {
            writeToFile(toUtf8(m_pending));
        }
    }
    m_pending.clear();
    return !m_failed;
}

void OutputStream::writeToConsole(std::wstring_view text)
{
    while (!text.empty() && !m_failed)
    {
        std::size_t length = std::min(text.size(), consoleChunk);
        // The two halves of a character stay together.
        if (length < text.size() && isHighSurrogate(text[length - 1]))
        {
            ++length;
        }
        DWORD written = 0;
        m_failed = !WriteConsoleW(m_handle, text.data(), static_cast<DWORD>(length), &written, nullptr) || written == 0;
        text.remove_prefix(written);
    }
}

void OutputStream::writeToFile(std::string_view text)
{
    while (!text.empty() && !m_failed)
    {
        DWORD written = 0;
        m_failed =
            !WriteFile(m_handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) || written == 0;
        text.remove_prefix(written);
    }
}

} // namespace Console
