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
inline constexpr wchar_t inputTemplateIsEmpty[] = L"Input template can not be empty";
inline constexpr wchar_t inputTemplateIsNotFound[] =
    L"Input template can not be found.  Make sure the template exists.";
inline constexpr wchar_t inputFileIsEmpty[] = L"Input file can not be empty";
inline constexpr wchar_t inputFileIsNotFound[] = L"Input file can not be found.  Make sure the file exists.";

// Whether the name has one of the nine characters \ / : * ? " < > |, which no name in Windows has. Nothing else is
// looked at: the library refuses what else cannot be a name.
bool hasForbiddenCharacter(const Core::String& name) noexcept;

// Whether a file or a folder has that path.
bool isPathTaken(const Core::String& path);

// What is wrong with the name that something in that folder shall have; null when nothing is. taken is what to say when
// a file or folder there has it already, whatever the library lists: formerName, which it has now, never counts as
// taken. For something new that is empty.
const wchar_t* faultOfName(const Core::String& name, const Core::String& formerName, const Core::String& folder,
                           const wchar_t* taken, const wchar_t* forbiddenCharacter = nameHasForbiddenCharacter);

// What is wrong with a file that shall become a template of that name; null when nothing is.
const wchar_t* faultOfTemplate(const Core::String& path, const Core::String& name);

// What is wrong with a file that shall be put into a resource folder under that name; null when nothing is.
const wchar_t* faultOfResourceFile(const Core::String& path, const Core::String& name);

// Where something goes when it is renamed: the new name is put behind what is left of its path. The library only
// takes the last component. Kept as is: every occurrence of the old name is taken out of the path, not only the last
// one.
Core::String renamedPath(const Core::String& path, const Core::String& oldName, const Core::String& newName);

// By what name a program asks the server for a template: "<application>:<template>"; empty for an empty template name.
Core::String serverTemplateId(const Core::String& application, const Core::String& templateName);

// The folder of every application.
Core::String applicationsFolder();

// The picture of a template. The ending ".xsl" is compared exactly.
int templateImage(const Core::String& templateName) noexcept;

} // namespace TMgmt
