#pragma once

#include "brimlow/system/FileTree.h"

// The system's files, with operations that fail when they are told to. Operations are counted from 1: those that change
// something on the disk.
class FaultyFiles final : public Core::IO::FileTree
{
  public:
    enum class Fault
    {
        // This one operation fails and does nothing.
        error,
        // The process ends here, in the middle of what it was doing.
        crash
    };
    static constexpr int crashStatus = 78;
    static constexpr Core::SystemError someError = 5;

    void failAt(int operation, Fault fault) noexcept;
    int operations() const noexcept { return m_operations; }

    Kind kind(const Core::String& path) const override;
    Core::SystemError copy(const Core::String& from, const Core::String& to) const override;
    Core::SystemError makeFolder(const Core::String& path) const override;
    Core::SystemError move(const Core::String& from, const Core::String& to) const override;
    bool remove(const Core::String& path) const override;
    void removeOld(const Core::String& folder, bool (*isMeant)(const Core::String& name)) const override;

  private:
    template <class Partly>
    bool fails(Partly partly) const;

    mutable int m_operations = 0;
    int m_failing = 0;
    Fault m_fault = Fault::error;
};
