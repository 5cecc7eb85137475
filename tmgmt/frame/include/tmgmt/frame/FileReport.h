#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/Object.h"

namespace TMgmt
{

// Tells the administrator once, not once a row or a refresh, that a file cannot be read. Each file has a report of its
// own, which all who show it share.
class FileReport : public Core::Object
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
