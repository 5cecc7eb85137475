#include "failureSentence.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <sqlite3.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#endif

namespace Database
{

namespace
{

Core::String systemReason(sqlite3* database)
{
    // SQLite looks for this case itself on Windows, and leaves the system's error code alone.
    if (sqlite3_extended_errcode(database) == SQLITE_CANTOPEN_ISDIR)
    {
        return L"it is a folder";
    }
    return Core::describeSystemError(static_cast<Core::SystemError>(sqlite3_system_errno(database)));
}

} // namespace

Core::String failureSentence(const Core::String& path, sqlite3* database, int result)
{
    const Core::String reason = Core::String::fromUtf8(sqlite3_errmsg(database));
    switch (result)
    {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Core::format(L"The database \"{0}\" is in use by another program. Please try again.", path, reason);
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return Core::format(L"The database \"{0}\" is damaged ({1}). Please restore it from a backup.", path, reason);
    case SQLITE_FULL:
        return Core::format(L"The database \"{0}\" cannot be changed: the disk is full.", path, reason);
    case SQLITE_READONLY:
        return Core::format(L"The database \"{0}\" cannot be changed: it is read-only.", path, reason);
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return Core::format(L"The database \"{0}\" cannot be opened: {1}.", path, systemReason(database));
    case SQLITE_IOERR:
        return Core::format(L"The database \"{0}\" cannot be read or written: {1}.", path, systemReason(database));
    default:
        return Core::format(L"The database \"{0}\" cannot be used: {1}.", path, reason);
    }
}

bool isNotFound(sqlite3* database) noexcept
{
    if (sqlite3_extended_errcode(database) != SQLITE_CANTOPEN)
    {
        return false;
    }
    const int systemError = sqlite3_system_errno(database);
#ifdef _WIN32
    return systemError == ERROR_FILE_NOT_FOUND || systemError == ERROR_PATH_NOT_FOUND;
#else
    return systemError == ENOENT || systemError == ENOTDIR;
#endif
}

} // namespace Database
