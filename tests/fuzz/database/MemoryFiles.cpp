#include "MemoryFiles.h"

#include "names.h"
#include "rules.h"

#include "brimlow/system/FileSystem.h"

#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#endif

using Core::String;
using Core::SystemError;

namespace
{

#ifdef _WIN32
constexpr SystemError notFound = ERROR_FILE_NOT_FOUND;
constexpr SystemError taken = ERROR_ALREADY_EXISTS;
constexpr SystemError impossible = ERROR_INVALID_PARAMETER;
#else
constexpr SystemError notFound = ENOENT;
constexpr SystemError taken = EEXIST;
constexpr SystemError impossible = EINVAL;
#endif

// The path itself, and what is in it.
bool isIn(const String& path, const String& folder)
{
    return path.startsWith(folder) &&
           (path == folder || path[folder.length()] == u'/' || path[folder.length()] == u'\\');
}

} // namespace

MemoryFiles::MemoryFiles(String folder, String journal) : m_folder(std::move(folder)), m_journal(std::move(journal)) {}

MemoryFiles::Kind MemoryFiles::kind(const String& path) const
{
    if (path == m_journal)
    {
        return system().kind(path);
    }
    const auto found = m_kinds.find(path);
    return found == m_kinds.end() ? Kind::none : found->second;
}

SystemError MemoryFiles::copy(const String& from, const String& to) const
{
    return isThere(from) ? make(to, Kind::file) : notFound;
}

SystemError MemoryFiles::makeFolder(const String& path) const
{
    return make(path, Kind::folder);
}

SystemError MemoryFiles::move(const String& from, const String& to) const
{
    requireInside(from);
    requireInside(to);
    if (!isThere(from))
    {
        return notFound;
    }
    if (isIn(to, from))
    {
        return to == from ? 0 : impossible;
    }
    if (isThere(to))
    {
        return taken;
    }
    std::vector<std::pair<String, Kind>> moved;
    for (auto entry = m_kinds.begin(); entry != m_kinds.end();)
    {
        const bool moves = isIn(entry->first, from);
        if (moves)
        {
            moved.emplace_back(to + String(entry->first.view().substr(from.length())), entry->second);
        }
        entry = moves ? m_kinds.erase(entry) : std::next(entry);
    }
    m_kinds.insert(moved.begin(), moved.end());
    return 0;
}

bool MemoryFiles::remove(const String& path) const
{
    if (path == m_journal)
    {
        return system().remove(path);
    }
    requireInside(path);
    std::erase_if(m_kinds, [&](const auto& entry) { return isIn(entry.first, path); });
    return true;
}

void MemoryFiles::removeOld(const String& folder, bool (*)(const String&)) const
{
    // Nothing is old.
    require(isIn(folder, m_folder), "files are looked for in the folder of the applications");
}

SystemError MemoryFiles::make(const String& path, Kind kind) const
{
    requireInside(path);
    return m_kinds.emplace(path, kind).second ? 0 : taken;
}

void MemoryFiles::requireInside(const String& path) const
{
    require(path != m_folder && isIn(path, m_folder), "a change stays in the folder of the applications");
    const String relative = path.view().substr(m_folder.length() + 1);
    for (const String& name : relative.replaceAll(L"/", L"\\").split(L"\\"))
    {
        require(!Tessaro::nameRefusal(name) || Tessaro::isTemporaryName(name), "what changes has a name");
    }
    for (const auto& [link, kind] : m_kinds)
    {
        require(kind != Kind::link || path == link || !isIn(path, link), "nothing changes behind a link");
    }
}

bool MemoryFiles::isThere(const String& path) const
{
    return m_kinds.contains(path);
}
