#pragma once

#include "brimlow/system/String.h"

#include <memory>

namespace Security
{

// An open file that only one can hold, among all programs. It is free again when this object ends or its program dies.
class LockFile
{
  public:
    // Opens an existing file. Throws Core::IOException.
    explicit LockFile(const Core::String& path);
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;
    ~LockFile();

    // False when another one holds it.
    bool tryToHold();

  private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace Security
