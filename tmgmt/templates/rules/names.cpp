#include "tmgmt/templates/rules/names.h"

#include "brimlow/system/FileSystem.h"

namespace TMgmt
{

namespace FileSystem = Core::IO::FileSystem;

bool hasForbiddenCharacter(const Core::String& name) noexcept
{
    return name.findOneOf(L"\\/:*?\"<>|") != Core::String::npos;
}

bool isPathTaken(const Core::String& path)
{
    return FileSystem::fileExists(path) || FileSystem::folderExists(path);
}

Core::String renamedPath(const Core::String& path, const Core::String& oldName, const Core::String& newName)
{
    return FileSystem::combinePath(path.replaceAll(oldName, L""), newName);
}

Core::String serverTemplateId(const Core::String& application, const Core::String& templateName)
{
    return templateName.empty() ? templateName : application + L":" + templateName;
}

} // namespace TMgmt
