#include "FaultyDisk.h"

#include <sqlite3.h>

#include <utility>

struct FaultyDisk::Vfs
{
    sqlite3_vfs face{};
    sqlite3_vfs* disk = nullptr;
    int operations = 0;
    int reads = 0;
    int failing = 0;
    Fault fault = Fault::error;
    int readOnly = 0;
    std::function<void()> onWait;

    // What becomes of the next operation.
    int next(bool writes = false)
    {
        ++operations;
        if (fault == Fault::full && failing && operations >= failing && writes)
        {
            return SQLITE_FULL;
        }
        return operations == failing && fault == Fault::error ? SQLITE_IOERR : SQLITE_OK;
    }
};

namespace
{

using Vfs = sqlite3_vfs;

// An open file: this, and behind it the disk's own.
struct File
{
    sqlite3_file face;
    void* vfs;
    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& fileOf(sqlite3_file* file)
{
    return *reinterpret_cast<File*>(file);
}

sqlite3_file* realOf(sqlite3_file* file)
{
    return fileOf(file).real();
}

} // namespace

FaultyDisk::FaultyDisk() : m_vfs(std::make_unique<Vfs>())
{
    // A file's methods know the disk only through this.
    static const auto vfsOf = [](sqlite3_file* file) -> Vfs& { return *static_cast<Vfs*>(fileOf(file).vfs); };
    static const auto methods = []
    {
        sqlite3_io_methods all{};
        all.iVersion = 1;
        all.xClose = [](sqlite3_file* file) { return realOf(file)->pMethods->xClose(realOf(file)); };
        all.xRead = [](sqlite3_file* file, void* data, int size, sqlite3_int64 at)
        {
            ++vfsOf(file).reads;
            return realOf(file)->pMethods->xRead(realOf(file), data, size, at);
        };
        all.xWrite = [](sqlite3_file* file, const void* data, int size, sqlite3_int64 at)
        {
            const int fault = vfsOf(file).next(true);
            return fault ? fault : realOf(file)->pMethods->xWrite(realOf(file), data, size, at);
        };
        all.xTruncate = [](sqlite3_file* file, sqlite3_int64 size)
        {
            const int fault = vfsOf(file).next();
            return fault ? fault : realOf(file)->pMethods->xTruncate(realOf(file), size);
        };
        all.xSync = [](sqlite3_file* file, int flags)
        {
            const int fault = vfsOf(file).next();
            return fault ? fault : realOf(file)->pMethods->xSync(realOf(file), flags);
        };
        all.xFileSize = [](sqlite3_file* file, sqlite3_int64* size)
        { return realOf(file)->pMethods->xFileSize(realOf(file), size); };
        all.xLock = [](sqlite3_file* file, int lock) { return realOf(file)->pMethods->xLock(realOf(file), lock); };
        all.xUnlock = [](sqlite3_file* file, int lock) { return realOf(file)->pMethods->xUnlock(realOf(file), lock); };
        all.xCheckReservedLock = [](sqlite3_file* file, int* result)
        { return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result); };
        all.xFileControl = [](sqlite3_file* file, int operation, void* argument)
        { return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument); };
        all.xSectorSize = [](sqlite3_file* file) { return realOf(file)->pMethods->xSectorSize(realOf(file)); };
        all.xDeviceCharacteristics = [](sqlite3_file* file)
        { return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file)); };
        return all;
    }();

    m_vfs->disk = sqlite3_vfs_find(nullptr);
    m_vfs->face = *m_vfs->disk;
    m_vfs->face.zName = "faulty";
    m_vfs->face.pNext = nullptr;
    m_vfs->face.szOsFile = static_cast<int>(sizeof(File)) + m_vfs->disk->szOsFile;
    m_vfs->face.pAppData = m_vfs.get();
    m_vfs->face.xOpen = [](sqlite3_vfs* face, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
    {
        Vfs& vfs = *static_cast<Vfs*>(face->pAppData);
        fileOf(file).face.pMethods = nullptr;
        fileOf(file).vfs = &vfs;
        if (flags & SQLITE_OPEN_CREATE)
        {
            if (const int fault = vfs.next())
            {
                return fault;
            }
        }
        if ((flags & SQLITE_OPEN_MAIN_DB) && vfs.readOnly > 0)
        {
            --vfs.readOnly;
            flags = (flags & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
        }
        const int result = vfs.disk->xOpen(vfs.disk, name, realOf(file), flags, outFlags);
        if (result == SQLITE_OK)
        {
            fileOf(file).face.pMethods = &methods;
        }
        return result;
    };
    m_vfs->face.xDelete = [](sqlite3_vfs* face, const char* name, int flush)
    {
        Vfs& vfs = *static_cast<Vfs*>(face->pAppData);
        const int fault = vfs.next();
        return fault ? fault : vfs.disk->xDelete(vfs.disk, name, flush);
    };
    m_vfs->face.xSleep = [](sqlite3_vfs* face, int microseconds)
    {
        Vfs& vfs = *static_cast<Vfs*>(face->pAppData);
        if (!vfs.onWait)
        {
            return vfs.disk->xSleep(vfs.disk, microseconds);
        }
        vfs.onWait();
        return microseconds;
    };
    sqlite3_vfs_register(&m_vfs->face, 1);
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(&m_vfs->face);
    sqlite3_vfs_register(m_vfs->disk, 1);
}

void FaultyDisk::failAt(int operation, Fault fault)
{
    m_vfs->operations = 0;
    m_vfs->failing = operation;
    m_vfs->fault = fault;
}

void FaultyDisk::setReadOnly(int databases)
{
    m_vfs->readOnly = databases;
}

void FaultyDisk::onWait(std::function<void()> action)
{
    m_vfs->onWait = std::move(action);
}

int FaultyDisk::operations() const
{
    return m_vfs->operations;
}

int FaultyDisk::reads() const
{
    return m_vfs->reads;
}
