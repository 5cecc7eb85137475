#pragma once

#include "brimlow/system/FileTree.h"

// The system's files, with an operation that fails, and does nothing, when it is told to. Operations are counted from
// 1: those that change something on the disk.
class FaultyFiles final : public Core::IO::FileTree
{
  public:
    static constexpr Core::SystemError someError = 5;

    void failAt(int operation) noexcept;
    int operations() const noexcept { return m_operations; }

    Kind kind(const Core::String& path) const override;
    Core::SystemError copy(const Core::String& from, const Core::String& to) const override;
    Core::SystemError makeFolder(const Core::String& path) const override;
    Core::SystemError move(const Core::String& from, const Core::String& to) const override;
    bool remove(const Core::String& path) const override;
    void removeOld(const Core::String& folder, bool (*isMeant)(const Core::String& name)) const override;

  private:
    // Counts the operation.
    bool fails() const noexcept;

    mutable int m_operations = 0;
    int m_failing = 0;
};
