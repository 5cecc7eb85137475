#pragma once

#include "platform/handles.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// The server's files in the common application data folder of this machine.
namespace Acceptance::ServerFiles
{

// The maker's folder, with everything that server and plug-in keep.
std::filesystem::path folder();
// The server configuration file.
std::filesystem::path configuration();
// This program's folder, where the plug-in and the stand-in are too.
std::filesystem::path programFolder();

// Takes everything away.
void reset();

// Bytes as they are; folders are made.
void write(const std::filesystem::path& file, std::string_view bytes);
std::string read(const std::filesystem::path& file);

// The configuration file with these lines between <appSettings> and </appSettings>, as
// <add key="ServerPort" value="1099"/>.
std::string configurationWith(std::string_view lines);
// What the configuration file says now.
std::optional<std::wstring> setting(const std::wstring& key);

// Keeps a file open so that nobody else can open it, replace it or delete it.
class Lock
{
  public:
    explicit Lock(const std::filesystem::path& file);

  private:
    platform::FileHandle m_file;
};

} // namespace Acceptance::ServerFiles
