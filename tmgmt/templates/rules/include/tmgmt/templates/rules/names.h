#pragma once

#include "brimlow/system/String.h"

namespace TMgmt
{

// What the dialogs say about the names of applications, folders and files.
inline constexpr wchar_t nameIsEmpty[] = L"Name can not be empty.";
inline constexpr wchar_t nameHasForbiddenCharacter[] =
    L"Name cannot contain any of the following characters: \\ / : * ? \" < > |";
inline constexpr wchar_t templateNameHasForbiddenCharacter[] =
    L"Template name cannot contain any of the following characters: \\ / : * ? \" < > |";
inline constexpr wchar_t folderAlreadyExists[] = L"Folder already exists.";
inline constexpr wchar_t fileAlreadyExists[] = L"File already exists.";

// Whether the name has one of the nine characters \ / : * ? " < > |, which no name in Windows has. Nothing else is
// looked at: the library refuses what else cannot be a name.
bool hasForbiddenCharacter(const Core::String& name) noexcept;

// Whether a file or a folder has that path.
bool isPathTaken(const Core::String& path);

// Where something goes when it is renamed: every occurrence of its old name is taken out of its path, not only the
// last one, and the new name is put behind what is left. Kept as is: the library only takes the last component.
Core::String renamedPath(const Core::String& path, const Core::String& oldName, const Core::String& newName);

// By what name a program asks the server for a template: "<application>:<template>"; empty for an empty template name.
Core::String serverTemplateId(const Core::String& application, const Core::String& templateName);

} // namespace TMgmt
