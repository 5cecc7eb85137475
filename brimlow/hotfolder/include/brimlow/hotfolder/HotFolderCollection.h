#pragma once

#include "brimlow/hotfolder/HotFolder.h"
#include "brimlow/system/SharedIdentity.h"

#include <memory>
#include <vector>

namespace HotFolders
{

// The hot folders of this machine, as they were stored when the collection was constructed or last changed anything,
// in the order in which they were added. They are kept in the database "Brimlow\Data\HotFolders.db" in the common
// application data folder, which the server reads too.
//
// All operations throw a Core::Exception that names the database when it cannot be used: damaged, busy for more than
// five seconds, no access, written by a newer version. The stored state is then what it was. Constructing is cheap as
// long as nobody changed anything.
class HotFolderCollection
{
  public:
    // Without a database the collection is empty; reading makes none.
    HotFolderCollection();

    // Equal for two collections as long as nobody has changed what is stored.
    Core::SharedIdentity state() const noexcept { return Core::SharedIdentity(m_folders); }

    int getCount() const noexcept;
    // The reference is good until the collection changes or ends. An index that is none throws
    // Core::UnreacheableCodeException.
    const HotFolder& getAt(int index) const;

    // Stores a new hot folder, behind all others. Throws Core::Exception with the sentence of
    // HotFolder::validate for one that is not valid (whether its folders exist is not asked here), and for one that
    // watches the same input folder with the same pattern as another: the server would convert each file twice.
    void addNewFolder(const HotFolder& folder);

    // Stores the values of a hot folder that was got from a collection. When several change the same one, the last
    // counts. Throws as addNewFolder does, and when it has been removed meanwhile.
    void updateFolder(const HotFolder& folder);

    // Removes a hot folder that was got from a collection, whatever values it has now. One that is gone already is no
    // error.
    void removeFolder(const HotFolder& folder);

  private:
    std::shared_ptr<const std::vector<HotFolder>> m_folders;
};

} // namespace HotFolders
