#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "brimlow/system/String.h"
#include "platform/BackgroundCall.h"

namespace TMgmt
{

// Lists folders of other machines without waiting longer for them than a person would: a share that does not answer
// keeps a caller until the redirector gives up, which takes minutes. To be used by one thread.
class RemoteFolderReader
{
  public:
    // Returns the files of a folder. It is called on other threads, at the same time for different folders.
    using List = std::function<std::vector<Core::String>(const Core::String& folder)>;

    RemoteFolderReader(List list, std::chrono::milliseconds patience);

    // What the function returns for the folder; nothing when it takes longer than the patience, and nothing at once
    // while an earlier call for the same folder is still out. Throws std::system_error when no thread can be started.
    std::vector<Core::String> list(const Core::String& folder);

  private:
    List m_list;
    std::chrono::milliseconds m_patience;
    // The calls that nobody waits for any more.
    std::map<Core::String, platform::BackgroundCall> m_out;
};

// Whether the folder is on another machine: a UNC path or a drive that stands for one. Asks no other machine.
bool isRemote(const Core::String& folder);

} // namespace TMgmt
