#pragma once

#include <functional>
#include <memory>

// A disk that fails when it is told to. While the object lives, every database that is opened in this process goes
// through it. Operations are counted from 1: those that change something on the disk (write, truncate, flush, delete,
// the making of a file).
class FaultyDisk
{
  public:
    enum class Fault
    {
        // This one operation fails.
        error,
        // From this operation on nothing can be written; deleting works.
        full
    };

    FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;
    ~FaultyDisk();

    void failAt(int operation, Fault fault);
    // The next databases are opened for reading only, as many as that.
    void setReadOnly(int databases);
    // Called whenever the database waits for another one, instead of waiting.
    void onWait(std::function<void()> action);

    int operations() const;
    int reads() const;

  private:
    struct Vfs;
    std::unique_ptr<Vfs> m_vfs;
};
