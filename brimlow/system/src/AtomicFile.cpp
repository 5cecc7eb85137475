#include "brimlow/system/AtomicFile.h"

#include "FileOperations.h"
#include "parentFolder.h"
#include "retry.h"

#include <random>

namespace Core::IO
{

namespace
{

String backupPath(const String& path)
{
    return path + L".previous";
}

// The name under which the content of the file is now: its own, or that of the backup; empty when there is none.
String findContent(const String& path, FileOperations& operations)
{
    // A second look, because a replacement in another process moves the content from the one name to the other. No
    // second replacement can come to its end in so short a time, because each brings its content to the disk first.
    for (int look = 0; look < 2; ++look)
    {
        for (const String& candidate : {path, backupPath(path)})
        {
            if (operations.kind(candidate) != FileKind::None)
            {
                return candidate;
            }
        }
    }
    return {};
}

// Numbers keep two processes that write the same file out of each other's way.
String newSidePath(const String& path)
{
    std::random_device random;
    return path + L"." + String(std::to_wstring(random())) + L".new";
}

void check(SystemError error, const String& path, const wchar_t* failure)
{
    if (error)
    {
        throw IOException(L"The file \"" + path + L"\" cannot be saved, " + failure, error);
    }
}

SystemError retry(FileOperations& operations, const auto& call)
{
    return IO::retry(
        call, [&](SystemError error) { return operations.mayPass(error); }, [&] { operations.pause(); });
}

// The side file, removed unless it took the target's place.
class SideFile
{
  public:
    SideFile(const String& target, FileOperations& operations, Access ofNewFile) : m_operations(operations)
    {
        const SystemError error =
            retry(operations,
                  [&]
                  {
                      m_path = newSidePath(target);
                      return operations.createSide(m_path, findContent(target, operations), ofNewFile);
                  });
        check(error, target, L"a file beside it cannot be made");
    }
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;
    ~SideFile()
    {
        if (!m_placed)
        {
            m_operations.close();
            m_operations.remove(m_path);
        }
    }

    const String& path() const noexcept { return m_path; }
    void placed() noexcept { m_placed = true; }

  private:
    FileOperations& m_operations;
    String m_path;
    bool m_placed = false;
};

SystemError place(const String& side, const String& path, FileOperations& operations)
{
    return retry(operations,
                 [&]
                 {
                     // Asked anew each time: an attempt that failed half-way may have taken the target away.
                     return operations.kind(path) == FileKind::None ? operations.move(side, path)
                                                                    : operations.replace(path, side, backupPath(path));
                 });
}

void bringBack(const String& path, FileOperations& operations)
{
    if (operations.kind(path) == FileKind::None && operations.kind(backupPath(path)) != FileKind::None)
    {
        operations.move(backupPath(path), path);
    }
}

} // namespace

void AtomicFile::write(const String& path, std::string_view content, Access ofNewFile)
{
    write(path, content, *makeSystemFileOperations(), ofNewFile);
}

void AtomicFile::write(const String& path, std::string_view content, FileOperations& operations, Access ofNewFile)
{
    switch (operations.kind(path))
    {
    case FileKind::Folder:
        throw IOException(L"The file \"" + path + L"\" cannot be saved, because there is a folder of that name.");
    case FileKind::ReadOnlyFile:
        throw IOException(L"The file \"" + path +
                          L"\" cannot be saved, because it is read-only. Remove its read-only attribute first.");
    case FileKind::None:
        makeParentFolders(path, operations);
        break;
    case FileKind::File:
        break;
    }
    operations.removeOldSides(path);

    SideFile side(path, operations, ofNewFile);
    check(operations.write(content), path, L"its new content cannot be written");
    check(operations.flush(), path, L"its new content cannot be brought to the disk");
    check(operations.close(), path, L"its new content cannot be brought to the disk");
    if (const SystemError error = place(side.path(), path, operations))
    {
        bringBack(path, operations);
        check(error, path, L"it cannot be replaced");
    }
    side.placed();
    operations.remove(backupPath(path));
}

std::string AtomicFile::read(const String& path)
{
    const auto operations = makeSystemFileOperations();
    std::string content;
    SystemError error = 0;
    for (int attempt = 1; attempt <= maxAttempts; ++attempt)
    {
        error = operations->read(path, content);
        if (operations->isNotFound(error))
        {
            error = operations->read(backupPath(path), content);
        }
        if (!error)
        {
            return content;
        }
        if (operations->isNotFound(error))
        {
            // Another process may have put the file in place, and removed the backup, between the two looks.
            if (!exists(path))
            {
                throw FileNotFoundException(path);
            }
            continue;
        }
        if (!operations->mayPass(error))
        {
            break;
        }
        operations->pause();
    }
    throw IOException(L"The file \"" + path + L"\" cannot be read", error);
}

bool AtomicFile::exists(const String& path)
{
    const auto operations = makeSystemFileOperations();
    const String found = findContent(path, *operations);
    return !found.empty() && operations->kind(found) != FileKind::Folder;
}

} // namespace Core::IO
