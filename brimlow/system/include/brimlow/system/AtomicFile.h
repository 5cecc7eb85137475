#pragma once

#include "brimlow/system/String.h"

#include <string>
#include <string_view>

namespace Core::IO
{

class FileOperations;

// Whom a new file lets in: those whom its folder lets in, or only administrators and SYSTEM (elsewhere: the user who
// runs the program).
enum class Access
{
    Usual,
    Private
};

// Files that are replaced whole. Whoever opens one, at any moment and after any crash, sees the old content or the new.
//
// A write goes to a side file in the same folder, "<name>.<number>.new", which then takes the file's place. While it
// does, Windows keeps the old content as "<name>.previous". A process that dies in that moment may leave only that
// backup: read and exists take it for the file, and the next write puts everything right. Side files that a crash left
// are removed by a later write, once they are an hour old and so cannot belong to a write that still runs.
class AtomicFile
{
  public:
    // Replaces or makes the file, and makes missing parent folders. The file has the access list of the old one, from
    // its first moment on; ofNewFile is for where there is none.
    // Two processes that write the same file do not disturb each other; the last one wins.
    // Throws IOException, with the old file whole and no side file left, when the file is read-only, is a folder, or
    // cannot be written. Other programs that keep the file busy are waited for, half a second at most.
    static void write(const String& path, std::string_view content, Access ofNewFile = Access::Usual);
    // The same over other file operations: the place where faults are injected.
    static void write(const String& path, std::string_view content, FileOperations& operations,
                      Access ofNewFile = Access::Usual);

    // Returns the whole content. Throws FileNotFoundException or IOException.
    static std::string read(const String& path);

    // Whether read would find a file; false for a folder.
    static bool exists(const String& path);
};

} // namespace Core::IO
