#pragma once

#include <filesystem>
#include <string>

namespace StandIn
{

enum class LogLevel
{
    none,
    normal,
    all
};

// What the server reads from "Brimlow\TSvc.config" in the common application data folder when it starts.
struct ServerSettings
{
    std::wstring address = L"0.0.0.0";
    unsigned short port = 1099;
    int backlog = 50;
    LogLevel logLevel = LogLevel::none;
    std::filesystem::path logFolder;

    // A key that is absent, or an absent file, gives the default. Throws what Core::Configuration::loadFrom throws,
    // and Core::FormatException naming the key when a number is none.
    static ServerSettings load();
};

} // namespace StandIn
