#pragma once

#include <utility>
#include <vector>

#include "brimlow/system/Configuration.h"

namespace TMgmt
{

// A configuration file that the plug-in shares with the server. Each call finds and loads it afresh, so that what the
// server or others wrote into it meanwhile is seen and kept. All of them throw Core::Exception when the file cannot be
// read or written; a failed change leaves it as it was.
class ServerFile
{
  public:
    // The path below the common application data folder; a constant, it is not copied.
    explicit constexpr ServerFile(const wchar_t* relativePath) noexcept : m_relativePath(relativePath) {}

    // The full path.
    Core::String path() const;

    // An empty store when the file is not there.
    Core::Configuration load() const;

    // All of these make the file when it is not there yet.
    void setValue(const Core::String& key, const Core::String& value) const;
    // Several keys with their values, in one step.
    void setValues(const std::vector<std::pair<Core::String, Core::String>>& values) const;
    void deleteValue(const Core::String& key) const;

  private:
    const wchar_t* m_relativePath;
};

} // namespace TMgmt
