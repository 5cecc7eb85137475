#include "tmgmt/fonts_logs/LogFolder.h"

#include "brimlow/system/Application.h"
#include "brimlow/system/FileSystem.h"

namespace TMgmt
{
namespace
{

// Longer than any server takes that is there, short enough for a person who waits.
constexpr std::chrono::seconds patience{10};

std::vector<Core::String> logsIn(const Core::String& folder)
{
    return Core::IO::FileSystem::getFiles(folder, L"*.log");
}

} // namespace

LogFolder::LogFolder() : m_remote(logsIn, patience) {}

Core::String LogFolder::path()
{
    return Core::Application::getFolder(L"LogFolder", L"%APP_DATA%\\Brimlow\\Log\\");
}

std::vector<Core::String> LogFolder::files()
{
    const Core::String folder = path();
    return isRemote(folder) ? m_remote.list(folder) : logsIn(folder);
}

} // namespace TMgmt
