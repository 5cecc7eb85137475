#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/Object.h"

namespace TMgmt
{

// Tells the administrator once, not once a row, that the server configuration file cannot be read. The groups of one
// tree share one report.
class SettingsFileReport : public Core::Object
{
  public:
    // Shows the message unless it was the last one shown.
    void failed(const Core::Exception& exception);
    // The file could be read: its next failure is news.
    void succeeded() { m_shown = Core::String(); }

  private:
    Core::String m_shown;
};

} // namespace TMgmt
