#pragma once

namespace HotFolders
{

// What the server does with a file that came through a hot folder. The numbers are stored and shared with the server.
// Stored values that are not listed here are kept as they are.
enum class ActionType
{
    None = 0, // of a default-constructed Action; counts as DeleteInputFile
    DeleteInputFile = 1,
    MoveInputFile = 2,
    CallWebService = 3
};

} // namespace HotFolders
