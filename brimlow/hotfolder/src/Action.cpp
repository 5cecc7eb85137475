#include "brimlow/hotfolder/Action.h"

#include "brimlow/system/StringFormatStream.h"

namespace HotFolders
{

Core::String Action::getDescription() const
{
    switch (m_type)
    {
    case ActionType::None:
    case ActionType::DeleteInputFile:
        return L"Delete input file";
    case ActionType::MoveInputFile:
        return (Core::StringFormatStream(L"Move input file to {0}") << m_destinationPath).getString();
    case ActionType::CallWebService:
        return (Core::StringFormatStream(L"Call {0}") << m_httpUrl).getString();
    }
    return (Core::StringFormatStream(L"Unknown action {0}") << static_cast<int>(m_type)).getString();
}

} // namespace HotFolders
