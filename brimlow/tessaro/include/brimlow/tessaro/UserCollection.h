#pragma once

#include "brimlow/system/SharedIdentity.h"
#include "brimlow/tessaro/User.h"

#include <memory>
#include <unordered_map>

namespace Tessaro
{

struct Content;

// The user accounts of the server and its guest account, as they were stored when the collection was constructed or
// last changed anything, in the order in which they were added. They are kept in the database
// "Brimlow\Data\Tessaro.db" in the common application data folder.
//
// All operations throw a Core::Exception that names the database when it cannot be used; what is stored is then what it
// was. Constructing is cheap as long as nobody changed anything.
class UserCollection
{
  public:
    // Without a database there are no users, and the guest account is off; reading makes no database.
    UserCollection();

    // Equal for two collections, of users or of applications, as long as nobody has changed what is stored.
    Core::SharedIdentity state() const noexcept { return Core::SharedIdentity(m_content); }

    int getCount() const noexcept;
    // The reference is good until the collection changes or ends. A position that is none throws Core::Exception.
    const User& getAt(int index) const;
    // The account of that very name. Throws Core::Exception when there is none: "There is no user \"<name>\".".
    const User& getUserByName(const Core::String& name) const;

    // Stores a new account behind all others. Throws Core::Exception when there is one of that very name.
    void addNewUser(const User& user);
    // Stores the values of an account that was got from a collection. When several change the same one, the last
    // counts. Throws Core::Exception when it has been removed, and when another has that very name.
    void updateUser(const User& user);
    // Removes an account that was got from a collection, whatever values it has now. One that is gone already is no
    // error.
    void deleteUser(const User& user);

    bool isGuestEnabled() const noexcept;
    void setGuestEnabled(bool enabled);

  private:
    template <class Write, class Apply>
    void change(Write write, Apply apply);

    std::shared_ptr<const Content> m_content;
    // The positions by name, made when a name is first asked for.
    mutable std::unordered_map<Core::String, int> m_positions;
};

} // namespace Tessaro
