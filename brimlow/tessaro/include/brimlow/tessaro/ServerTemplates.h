#pragma once

#include "brimlow/system/SharedIdentity.h"
#include "brimlow/tessaro/ServerApplication.h"

#include <memory>
#include <unordered_map>

namespace Tessaro
{

struct Content;

// The applications of this machine, as they were stored when the collection was constructed or last changed anything,
// in the order in which they were added. They are kept in the database "Brimlow\Data\Tessaro.db" in the common
// application data folder, which the server reads too; their files are below "Brimlow\ServerTemplates".
//
// All operations throw a Core::Exception that names the database, file or folder when it cannot be used. What is
// stored is then what it was. Nothing outside "Brimlow\ServerTemplates" is ever written or deleted, whatever the name
// or path, and links there are not followed. Constructing is cheap as long as nobody changed anything.
class ServerTemplates
{
  public:
    // Without a database the collection is empty; reading makes none.
    ServerTemplates();

    // Equal for two collections, of applications or of users, as long as nobody has changed what is stored.
    Core::SharedIdentity state() const noexcept { return Core::SharedIdentity(m_content); }

    int getCount() const noexcept;
    // The collection's own copy, which may be changed and given to updateApplication. The reference is good until the
    // collection changes or ends. A position that is none throws Core::Exception.
    ServerApplication& getAt(int index);

    // Stores a new application with its engine and its users, behind all others, and makes its folder. The last
    // component of its path is its name. Throws when the folder exists.
    void addNewApplication(const ServerApplication& application);

    // Gives an application, and its folder, the last component of newPath as name, and stores its engine and users as
    // updateApplication does.
    void renameApplication(const ServerApplication& application, const Core::String& newPath);

    // Removes the application that the last component of the path names, with its folder and everything in it. One
    // that is gone already is no error.
    void deleteApplication(const Core::String& path);

    // Stores what was changed in the application's engine and users since it was got, or last given here: what others
    // changed meanwhile stays, and what they removed does not come back. Throws when the application has been removed.
    void updateApplication(const ServerApplication& application);

  private:
    std::shared_ptr<const Content> m_content;
    // Those that were given out, by position.
    std::unordered_map<int, ServerApplication> m_given;
};

} // namespace Tessaro
