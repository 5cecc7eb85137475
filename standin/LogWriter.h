#pragma once

#include <platform/handles.h>

#include <filesystem>
#include <string>

namespace StandIn
{

// One log file of one run, named after the time at which it was opened. While it is open nobody can delete it.
class LogWriter
{
  public:
    // Makes the folder where it is missing. Throws Core::IOException naming the folder or the file.
    explicit LogWriter(const std::filesystem::path& folder);

    // Adds one line with the time before it. A line that cannot be written is lost: a full disk must not stop a server.
    void write(const std::wstring& text) noexcept;

  private:
    platform::FileHandle m_file;
};

} // namespace StandIn
