#include "kit/ServerFiles.h"

#include <brimlow/system/Configuration.h>

#include <windows.h>

#include <knownfolders.h>
#include <shlobj.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace Acceptance::ServerFiles
{

std::filesystem::path folder()
{
    platform::TaskString path;
    if (FAILED(SHGetKnownFolderPath(FOLDERID_ProgramData, 0, nullptr, path.put())))
    {
        throw std::runtime_error("no common application data folder");
    }
    return std::filesystem::path(path.get()) / L"Brimlow";
}

std::filesystem::path configuration()
{
    return folder() / L"TSvc.config";
}

std::filesystem::path programFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

void reset()
{
    if (!std::filesystem::exists(folder()))
    {
        return;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder()))
    {
        SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    std::filesystem::remove_all(folder());
}

void write(const std::filesystem::path& file, std::string_view bytes)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush())
    {
        throw std::runtime_error("cannot write " + file.string());
    }
}

std::string read(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
    {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string configurationWith(std::string_view lines)
{
    return std::string("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<configuration>\r\n  <appSettings>\r\n")
        .append(lines)
        .append("  </appSettings>\r\n</configuration>\r\n");
}

std::optional<std::wstring> setting(const std::wstring& key)
{
    Core::Configuration store;
    store.loadFrom(configuration().wstring());
    Core::String value;
    return store.getValue(key, value) ? std::optional(value.str()) : std::nullopt;
}

Lock::Lock(const std::filesystem::path& file)
    : m_file(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr))
{
    if (!m_file)
    {
        throw std::runtime_error("cannot lock " + file.string());
    }
}

} // namespace Acceptance::ServerFiles
