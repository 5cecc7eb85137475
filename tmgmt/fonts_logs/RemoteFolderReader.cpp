#include "tmgmt/fonts_logs/RemoteFolderReader.h"

#include <shlwapi.h>

#include <memory>
#include <utility>

namespace TMgmt
{

RemoteFolderReader::RemoteFolderReader(List list, std::chrono::milliseconds patience)
    : m_list(std::move(list)), m_patience(patience)
{
}

std::vector<Core::String> RemoteFolderReader::list(const Core::String& folder)
{
    std::erase_if(m_out, [](const auto& call) { return call.second.waitFor(std::chrono::milliseconds(0)); });
    if (m_out.contains(folder))
    {
        return {};
    }
    const auto files = std::make_shared<std::vector<Core::String>>();
    platform::BackgroundCall call([list = m_list, folder, files] { *files = list(folder); });
    if (!call.waitFor(m_patience))
    {
        m_out.emplace(folder, std::move(call));
        return {};
    }
    return std::move(*files);
}

bool isRemote(const Core::String& folder)
{
    // A relative path is on the drive of the current folder.
    std::wstring full(GetFullPathNameW(folder.c_str(), 0, nullptr, nullptr), L'\0');
    GetFullPathNameW(folder.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return PathIsNetworkPathW(full.c_str()) != FALSE;
}

} // namespace TMgmt
