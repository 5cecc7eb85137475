#pragma once

#include "brimlow/hotfolder/ActionType.h"
#include "brimlow/system/String.h"

namespace HotFolders
{

// One step after a conversion. Each kind uses its own field; the fields of the other kinds keep what they hold.
class Action
{
  public:
    ActionType getType() const noexcept { return m_type; }
    void setType(ActionType type) noexcept { m_type = type; }

    // Where MoveInputFile moves the input file: a folder.
    const Core::String& getDestinationPath() const noexcept { return m_destinationPath; }
    void setDestinationPath(const Core::String& path) { m_destinationPath = path; }

    // What CallWebService requests by GET. The server fills in {InputFile} and {OutputFile}.
    const Core::String& getHttpUrl() const noexcept { return m_httpUrl; }
    void setHttpUrl(const Core::String& url) { m_httpUrl = url; }

    // One line: "Delete input file", "Move input file to <path>", "Call <URL>", or "Unknown action <number>".
    Core::String getDescription() const;

    friend bool operator==(const Action&, const Action&) = default;

  private:
    ActionType m_type = ActionType::None;
    Core::String m_destinationPath;
    Core::String m_httpUrl;
};

} // namespace HotFolders
