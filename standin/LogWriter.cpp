#include "LogWriter.h"

#include <brimlow/system/Exception.h>

#include <array>
#include <cstdio>

namespace StandIn
{

namespace
{

std::wstring formatTime(const wchar_t* format)
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    std::array<wchar_t, 64> text{};
    std::swprintf(text.data(), text.size(), format, now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
                  now.wSecond);
    return text.data();
}

} // namespace

LogWriter::LogWriter(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
    {
        throw Core::IOException(L"Can't create the log folder " + folder.wstring(),
                                static_cast<Core::SystemError>(error.value()));
    }

    const std::filesystem::path path = folder / formatTime(L"KV Tessaro %04d-%02d-%02d %02d-%02d-%02d.log");
    // Adding at the end, since a restart within the same second meets its predecessor's file.
    m_file.reset(CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!m_file)
    {
        throw Core::IOException(L"Can't create the log file " + path.wstring(), GetLastError());
    }
}

void LogWriter::write(const std::wstring& text) noexcept
{
    try
    {
        const std::string line = Core::String(formatTime(L"%04d-%02d-%02d %02d:%02d:%02d ") + text).toUtf8() + "\r\n";
        DWORD written = 0;
        WriteFile(m_file.get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    }
    catch (const std::bad_alloc&)
    {
    }
}

} // namespace StandIn
