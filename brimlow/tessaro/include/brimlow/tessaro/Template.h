#pragma once

#include "brimlow/system/String.h"

namespace Tessaro
{

// A template of an application, or a file that is to become one. A value.
class Template
{
  public:
    // The name of the file, without its folder.
    Core::String getDisplayName() const;

    // The full path of the file.
    const Core::String& getTemplatePath() const noexcept { return m_path; }
    void setTemplatePath(const Core::String& path) { m_path = path; }

  private:
    Core::String m_path;
};

} // namespace Tessaro
