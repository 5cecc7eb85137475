#pragma once

#include "brimlow/system/FileTree.h"

#include <map>

// The files and folders of the applications as mere names. Requires of every change that it stays in their folder;
// only the journal beside the database is a file on the disk.
class MemoryFiles final : public Core::IO::FileTree
{
  public:
    MemoryFiles(Core::String folder, Core::String journal);

    const Core::String& folder() const noexcept { return m_folder; }
    // Also outside the folder.
    void put(const Core::String& path, Kind kind) { m_kinds[path] = kind; }

    Kind kind(const Core::String& path) const override;
    Core::SystemError copy(const Core::String& from, const Core::String& to) const override;
    Core::SystemError makeFolder(const Core::String& path) const override;
    Core::SystemError move(const Core::String& from, const Core::String& to) const override;
    bool remove(const Core::String& path) const override;
    void removeOld(const Core::String& folder, bool (*isMeant)(const Core::String& name)) const override;

  private:
    Core::SystemError make(const Core::String& path, Kind kind) const;
    void requireInside(const Core::String& path) const;
    bool isThere(const Core::String& path) const;

    Core::String m_folder;
    Core::String m_journal;
    mutable std::map<Core::String, Kind> m_kinds;
};
