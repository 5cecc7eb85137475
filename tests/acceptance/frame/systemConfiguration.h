#pragma once

#include "kit/ServerFiles.h"

#include <string_view>

// The server's system configuration file, which names the product.
namespace Acceptance::SystemConfiguration
{

inline std::filesystem::path file()
{
    return ServerFiles::folder() / L"Common" / L"Config" / L"System.config";
}

inline void write(std::string_view lines)
{
    ServerFiles::write(file(), ServerFiles::configurationWith(lines));
}

inline constexpr std::string_view complete = "    <add key=\"ProductName\" value=\"KV Tessaro Server\"/>\r\n"
                                             "    <add key=\"ProductVersion\" value=\"10.2.7\"/>\r\n"
                                             "    <add key=\"BuildNumber\" value=\"4711\"/>\r\n";

} // namespace Acceptance::SystemConfiguration
