#pragma once

#include <vector>

#include "tmgmt/fonts_logs/RemoteFolderReader.h"

namespace TMgmt
{

// The folder that the server writes its log files into, as the setting "LogFolder" names it at the moment of each call.
// Both throw Core::Exception when the settings cannot be read.
class LogFolder
{
  public:
    LogFolder();

    static Core::String path();

    // The full paths of the log files; none where there is no such folder or its machine does not answer in time.
    std::vector<Core::String> files();

  private:
    RemoteFolderReader m_remote;
};

} // namespace TMgmt
