#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/String.h"

namespace Core::IO
{

// The calls on the system for files and folders that the product keeps and changes. None follows a link, so that
// nothing changes outside the folder that a path names. Paths may be as long as the file system allows. What returns a
// SystemError returns 0 on success and throws for lack of memory only. Tests let single calls fail.
class FileTree
{
  public:
    enum class Kind
    {
        none,
        // Also a link to a file: what is done to it is done to the link.
        file,
        folder,
        // A link to a folder, or a junction.
        link,
        // Something may be there, which the caller may not look at or the system cannot read.
        unknown
    };

    // The system itself. It has no state.
    static const FileTree& system() noexcept;

    virtual ~FileTree() = default;

    virtual Kind kind(const String& path) const = 0;

    // Copies the content of a file, link or not, into a new one and returns when it is on the disk. The new file has
    // the access rights that are usual in its folder, and is not read-only. Refuses a name that is taken. When it fails
    // there is no new file.
    virtual SystemError copy(const String& from, const String& to) const = 0;
    // Refuses a name that is taken.
    virtual SystemError makeFolder(const String& path) const = 0;
    // Gives a file or folder another name or place on the same volume, in one step. Refuses a name that is taken, but
    // for that of the thing itself in another case. Files that another program holds for a moment are waited for.
    virtual SystemError move(const String& from, const String& to) const = 0;
    // Removes a file, a link, or a folder with everything in it, whatever is read-only too. Returns false when
    // something is left, and goes on with the rest. Nothing there is a success.
    virtual bool remove(const String& path) const = 0;
    // Removes the files and folders in a folder that were last written more than an hour ago, as far as their names
    // are meant.
    virtual void removeOld(const String& folder, bool (*isMeant)(const String& name)) const = 0;

    // Makes the folder that a file or folder is to be in, and those above it, as far as they are missing.
    // Throws IOException.
    static void makeParentFolders(const String& path);

    static bool isNotFound(SystemError error) noexcept;
    // The name is taken.
    static bool isTaken(SystemError error) noexcept;
};

} // namespace Core::IO
