#pragma once

#include "brimlow/tessaro/ResourceFile.h"

#include <memory>

namespace Tessaro
{

// A folder with the images and texts that an application's templates use. A value, as it was stored when it was got
// from its application; the operations on files change what is stored at once, and this copy with it.
//
// The operations throw a Core::Exception whose sentence names the file, folder or database and the reason; nothing has
// changed then, on the disk or in the database.
class ResourcesFolder
{
  public:
    // Belongs to no application and has no files.
    ResourcesFolder() noexcept = default;

    // Its position among the folders of its application when it was got; -1 when it belongs to none.
    int getId() const noexcept { return m_id; }
    Core::String getDisplayName() const;
    // The full path of the folder; empty when it belongs to no application.
    const Core::String& getResourcesFolderPath() const noexcept;

    int getCount() const noexcept;
    // In the order in which they were added. The reference is good until the folder changes or ends. A position that is
    // none throws Core::Exception.
    const ResourceFile& getAt(int index) const;

    // Copies the file into the folder, under its own name, and lists it behind the others. Throws for a name that is
    // taken there or that is no name for a file, and when the file cannot be copied or is that very file.
    void addResourceFile(const ResourceFile& file);

    // Gives a file of the folder the last component of newPath as its name. Where it is stays as it is.
    void renameReourceFile(const ResourceFile& file, const Core::String& newPath);

    // Removes a file of the folder from the list and from the disk. One that is gone already is no error.
    void deleteResourceFile(const ResourceFile& file);

  private:
    friend class ApplicationReader;
    friend class ApplicationStore;
    struct Fields;
    const Fields& fields() const noexcept;

    int m_id = -1;
    // Shared by all copies, and never changed. None while the folder belongs to no application.
    std::shared_ptr<const Fields> m_fields;
};

} // namespace Tessaro
