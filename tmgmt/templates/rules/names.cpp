#include "tmgmt/templates/rules/names.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/Process.h"

namespace TMgmt
{

namespace FileSystem = Core::IO::FileSystem;

namespace
{

struct FileMessages
{
    const wchar_t* isEmpty;
    const wchar_t* hasForbiddenCharacter;
    const wchar_t* isNotFound;
};

const wchar_t* faultOfFile(const Core::String& path, const Core::String& name, const FileMessages& messages)
{
    if (path.empty())
    {
        return messages.isEmpty;
    }
    if (hasForbiddenCharacter(name))
    {
        return messages.hasForbiddenCharacter;
    }
    return FileSystem::fileExists(path) ? nullptr : messages.isNotFound;
}

} // namespace

bool hasForbiddenCharacter(const Core::String& name) noexcept
{
    return name.findOneOf(L"\\/:*?\"<>|") != Core::String::npos;
}

bool isPathTaken(const Core::String& path)
{
    return FileSystem::fileExists(path) || FileSystem::folderExists(path);
}

// Kept as is: a change of case alone is refused, because the disk has the name already.
const wchar_t* faultOfName(const Core::String& name, const Core::String& formerName, const Core::String& folder,
                           const wchar_t* taken, const wchar_t* forbiddenCharacter)
{
    if (name.empty())
    {
        return nameIsEmpty;
    }
    if (hasForbiddenCharacter(name))
    {
        return forbiddenCharacter;
    }
    return name != formerName && isPathTaken(FileSystem::combinePath(folder, name)) ? taken : nullptr;
}

const wchar_t* faultOfTemplate(const Core::String& path, const Core::String& name)
{
    return faultOfFile(path, name, {inputTemplateIsEmpty, templateNameHasForbiddenCharacter, inputTemplateIsNotFound});
}

const wchar_t* faultOfResourceFile(const Core::String& path, const Core::String& name)
{
    return faultOfFile(path, name, {inputFileIsEmpty, nameHasForbiddenCharacter, inputFileIsNotFound});
}

Core::String renamedPath(const Core::String& path, const Core::String& oldName, const Core::String& newName)
{
    return FileSystem::combinePath(path.replaceAll(oldName, L""), newName);
}

Core::String serverTemplateId(const Core::String& application, const Core::String& templateName)
{
    return templateName.empty() ? templateName : application + L":" + templateName;
}

Core::String applicationsFolder()
{
    return FileSystem::combinePath(Core::Process::getCommonAppDataFolder(), L"Brimlow\\ServerTemplates");
}

int templateImage(const Core::String& templateName) noexcept
{
    return templateName.view().ends_with(Core::String(L".xsl").view()) ? 21 : 20;
}

} // namespace TMgmt
