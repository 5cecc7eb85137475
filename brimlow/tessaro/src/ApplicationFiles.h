#pragma once

#include "brimlow/system/FileTree.h"

namespace Tessaro
{

// The folders and files of the applications on the disk. Paths are relative to the folder that has them all, with a
// backslash between the names; "" is that folder itself.
class ApplicationFiles
{
  public:
    using Kind = Core::IO::FileTree::Kind;

    // system must outlive the object.
    ApplicationFiles(Core::String folder, const Core::IO::FileTree& system);

    const Core::IO::FileTree& system() const noexcept { return m_system; }
    const Core::String& folder() const noexcept { return m_folder; }

    Core::String pathOf(const Core::String& relative) const;
    Kind kind(const Core::String& relative) const;

    // Whether the folder, or one that it is in, is a link: things would change elsewhere.
    bool leadsElsewhere(const Core::String& relative) const;
    // These throw Core::Exception with what is wrong and the way out.
    void requireNoLink(const Core::String& relative) const;
    void requireFolder(const Core::String& relative) const;
    [[noreturn]] void failAsMissing(const Core::String& relative) const;

    Core::SystemError move(const Core::String& from, const Core::String& to) const;
    // As far as nobody uses it.
    void remove(const Core::String& relative) const noexcept;
    // Removes what was on its way into the folder, or out of it, when a program died some time ago.
    void removeLeftovers(const Core::String& relative) const;

  private:
    Core::String m_folder;
    const Core::IO::FileTree& m_system;
};

// The path of a name in a folder.
Core::String join(const Core::String& folder, const Core::String& name);

} // namespace Tessaro
