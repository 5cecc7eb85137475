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
        return Core::format(L"Move input file to {0}", m_destinationPath);
    case ActionType::CallWebService:
        return Core::format(L"Call {0}", m_httpUrl);
    }
    return Core::format(L"Unknown action {0}", static_cast<int>(m_type));
}

} // namespace HotFolders
