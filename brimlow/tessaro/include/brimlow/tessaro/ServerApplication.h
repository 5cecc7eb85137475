#pragma once

#include "brimlow/tessaro/ResourcesFolder.h"
#include "brimlow/tessaro/Template.h"
#include "brimlow/tessaro/XsltEngine.h"

#include <memory>
#include <vector>

namespace Tessaro
{

// A group of templates with the resources that they use and the users who may use them. It has a folder of its own,
// named after it, below "Brimlow\ServerTemplates" in the common application data folder. A value, as it was stored when
// it was got from ServerTemplates.
//
// What concerns files (templates, resource folders) changes what is stored at once, and this copy with it. The engine
// and the users change in this copy only, until it is given to ServerTemplates.
//
// The operations on files throw a Core::Exception whose sentence names the file, folder or database and the reason;
// nothing has changed then, on the disk or in the database. They throw, too, for an application that is not stored
// (any more), and for names that Windows or the product cannot have: empty, "." and "..", with a control character or
// one of \ / : * ? " < > |, with a dot or blank at the end, the names of devices, longer than 255 units, and the names
// of the product's own temporary files. Wherever a path is given, its last component is the name and the rest does not
// count; templates and folders are found by their names, in which case does not matter.
class ServerApplication
{
  public:
    // Not stored yet: no path, MSXML, nothing in it.
    ServerApplication() noexcept = default;

    // Its position in the collection when it was got; -1 when it is not stored yet.
    int getId() const noexcept { return m_id; }
    // The last component of the path.
    Core::String getDisplayName() const;

    // The full path of its folder.
    const Core::String& getApplicationPath() const noexcept;
    void setApplicationPath(const Core::String& path);

    XsltEngine getParser() const noexcept;
    void setParser(XsltEngine engine);

    int getTemplatesCount() const noexcept;
    // In the order in which they were added. The reference is good until the application changes or ends. A position
    // that is none throws Core::Exception.
    const Template& getAt(int index) const;

    // Copies the file into the application's folder, under its own name, and lists it behind the others. Throws for a
    // name that is taken there, and when the file cannot be copied or is that very file.
    void addNewTemplate(const Template& file);
    // Gives a template the last component of newPath as its name. Where it is stays as it is.
    void renameTemplate(const Template& file, const Core::String& newPath);
    // Removes a template from the list and from the disk. One that is gone already is no error.
    void deleteTemplate(const Template& file);

    int getResourcesCount() const noexcept;
    // In the order in which they were added; see getAt. Files are put into a copy of the folder.
    const ResourcesFolder& getResourceFolderAt(int index) const;

    // Makes an empty folder in the application's folder and lists it behind the others. Throws for a name that is
    // taken there. Here the whole text is the name.
    void addNewResource(const Core::String& name);
    // Gives a folder the last component of newPath as its name. Where it is stays as it is.
    void renameResource(const ResourcesFolder& folder, const Core::String& newPath);
    // Removes the folder with everything in it. One that is gone already is no error.
    void deleteResource(const Core::String& path);

    // The names of the users who may use the templates, in the order in which they were granted it. "Guest" is the
    // guest account. Nothing is checked here against the accounts that there are.
    const std::vector<Core::String>& getUsers() const noexcept;
    void setUsers(const std::vector<Core::String>& users);
    // Puts the name behind the others, unless it is listed already.
    void addUser(const Core::String& name);
    // Takes every entry of that very name out.
    void deleteUser(const Core::String& name);

  private:
    friend class ApplicationReader;
    friend class ApplicationStore;
    friend class ServerTemplates;
    struct Fields;
    const Fields& fields() const noexcept;
    Fields& change();

    int m_id = -1;
    // Copies share the fields until one of them changes: applications are copied often and seldom changed.
    // None while they are the default ones.
    std::shared_ptr<Fields> m_fields;
};

} // namespace Tessaro
