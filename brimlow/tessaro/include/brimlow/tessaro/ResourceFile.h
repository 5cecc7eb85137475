#pragma once

#include "brimlow/system/String.h"

namespace Tessaro
{

// An image or a text that templates use, in a resource folder, or a file that is to be put into one. A value.
class ResourceFile
{
  public:
    // The name of the file, without its folder.
    Core::String getDisplayName() const;

    // The full path of the file.
    const Core::String& getResourceFilePath() const noexcept { return m_path; }
    void setResourceFilePath(const Core::String& path) { m_path = path; }

  private:
    Core::String m_path;
};

} // namespace Tessaro
