#include "ApplicationFiles.h"

#include "names.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/StringFormatStream.h"

#include <utility>

namespace Tessaro
{

using Core::String;

ApplicationFiles::ApplicationFiles(String folder, const Core::IO::FileTree& system)
    : m_folder(std::move(folder)), m_system(system)
{
}

String ApplicationFiles::pathOf(const String& relative) const
{
    return Core::IO::FileSystem::combinePath(m_folder, relative);
}

ApplicationFiles::Kind ApplicationFiles::kind(const String& relative) const
{
    return m_system.kind(pathOf(relative));
}

bool ApplicationFiles::leadsElsewhere(const String& relative) const
{
    String folder;
    for (const String& name : relative.split(L"\\"))
    {
        folder = join(folder, name);
        if (kind(folder) == Kind::link)
        {
            return true;
        }
    }
    return false;
}

void ApplicationFiles::requireNoLink(const String& relative) const
{
    if (leadsElsewhere(relative))
    {
        throw Core::Exception(
            Core::format(L"The folder \"{0}\" is reached through a link to another place, where nothing is changed. "
                         L"Please put a folder in the place of the link.",
                         pathOf(relative)));
    }
}

void ApplicationFiles::requireFolder(const String& relative) const
{
    requireNoLink(relative);
    if (kind(relative) != Kind::folder)
    {
        failAsMissing(relative);
    }
}

void ApplicationFiles::failAsMissing(const String& relative) const
{
    throw Core::Exception(Core::format(
        L"\"{0}\" is missing on the disk. Please put it back, or delete it from the list.", pathOf(relative)));
}

Core::SystemError ApplicationFiles::move(const String& from, const String& to) const
{
    return m_system.move(pathOf(from), pathOf(to));
}

void ApplicationFiles::remove(const String& relative) const noexcept
{
    try
    {
        m_system.remove(pathOf(relative));
    }
    catch (...)
    {
        // No memory: it is left, as if somebody used it.
    }
}

void ApplicationFiles::removeLeftovers(const String& relative) const
{
    m_system.removeOld(pathOf(relative), &isTemporaryName);
}

String join(const String& folder, const String& name)
{
    return folder.empty() ? name : folder + L"\\" + name;
}

} // namespace Tessaro
