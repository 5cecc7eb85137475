#include "console/host/Trace.h"

#include <cerrno>
#include <system_error>

namespace Console
{

namespace
{

std::string utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

std::wstring place(unsigned instance, unsigned view)
{
    return L"[" + std::to_wstring(instance) + (view == 0 ? L"" : L"." + std::to_wstring(view)) + L"] ";
}

} // namespace

FileTrace::FileTrace(const std::filesystem::path& file) : m_file(_wfopen(file.c_str(), L"wb"))
{
    if (m_file == nullptr)
    {
        throw std::filesystem::filesystem_error("The trace file cannot be written", file,
                                                std::error_code(errno, std::generic_category()));
    }
}

FileTrace::~FileTrace()
{
    std::fclose(m_file);
}

void FileTrace::write(unsigned depth, const std::wstring& line)
{
    const std::string bytes = std::string(std::size_t{2} * depth, ' ') + utf8(line) + "\r\n";
    std::fwrite(bytes.data(), 1, bytes.size(), m_file);
    std::fflush(m_file);
}

void FileTrace::entered(const Call& call)
{
    const wchar_t* const arrow = call.direction == Direction::toSnapIn ? L"> " : L"< ";
    write(call.depth, arrow + place(call.instance, call.view) + call.method + L"(" + call.arguments + L")");
}

void FileTrace::returned(const Call& call, HRESULT result)
{
    write(call.depth, L"= " + resultName(result) + L" " + call.method);
}

void FileTrace::complained(const Complaint& complaint)
{
    write(0, L"! " + place(complaint.instance, 0) + complaint.text);
}

} // namespace Console
