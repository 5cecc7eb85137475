#pragma once

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/String.h"

#include <memory>
#include <string>
#include <string_view>

namespace Core::IO
{

enum class FileKind
{
    None,
    File,
    ReadOnlyFile,
    Folder
};

// The calls on the system of which AtomicFile is made; tests let single ones of them fail. One object serves one read
// or write at a time. What returns a SystemError returns 0 on success and never throws.
class FileOperations
{
  public:
    virtual ~FileOperations() = default;

    virtual FileKind kind(const String& path) = 0;
    virtual SystemError read(const String& path, std::string& content) = 0;

    // Success too when the folder is there already.
    virtual SystemError makeFolder(const String& folder) = 0;

    // Makes a new file, refusing an existing one, with the access list of model from the first moment on (with that of
    // a new file when model is empty). It stays open for write, flush and close.
    virtual SystemError createSide(const String& side, const String& model, Access ofNewFile) = 0;
    virtual SystemError write(std::string_view content) = 0;
    // Returns when the content is on the disk.
    virtual SystemError flush() = 0;
    virtual SystemError close() = 0;

    // Puts side in the place of an existing target. The system may keep the old target as backup.
    virtual SystemError replace(const String& target, const String& side, const String& backup) = 0;
    // Gives a file another name in the same folder; refuses a name that is taken.
    virtual SystemError move(const String& from, const String& to) = 0;
    virtual SystemError remove(const String& path) = 0;
    // Removes the files "<path>.*.new" that were last written more than an hour ago.
    virtual void removeOldSides(const String& path) = 0;

    virtual bool isNotFound(SystemError error) const = 0;
    // Whether the error comes from another program that uses the file just now, so that a second attempt makes sense.
    virtual bool mayPass(SystemError error) const = 0;
    // Waits before that attempt.
    virtual void pause() = 0;
};

std::unique_ptr<FileOperations> makeSystemFileOperations();

} // namespace Core::IO
