#include "brimlow/tessaro/UserCollection.h"

#include "TessaroStore.h"
#include "UserTable.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <optional>

namespace Tessaro
{

using Database::Connection;

UserCollection::UserCollection() : m_content(TessaroStore::instance().get(TessaroStore::machinePlace())) {}

int UserCollection::getCount() const noexcept
{
    return static_cast<int>(m_content->users.size());
}

const User& UserCollection::getAt(int index) const
{
    if (index < 0 || index >= getCount())
    {
        throw Core::UnreacheableCodeException();
    }
    return m_content->users[static_cast<std::size_t>(index)];
}

const User& UserCollection::getUserByName(const Core::String& name) const
{
    if (m_positions.empty())
    {
        for (int index = 0; index < getCount(); ++index)
        {
            m_positions.emplace(getAt(index).getUsername(), index);
        }
    }
    const auto found = m_positions.find(name);
    if (found == m_positions.end())
    {
        throw Core::Exception(Core::format(L"There is no user \"{0}\".", name));
    }
    return getAt(found->second);
}

void UserCollection::addNewUser(const User& user)
{
    std::optional<User> added;
    change([&](Connection& connection) { added = UserTable::add(connection, user); },
           [&](Content& content) { content.users.push_back(*added); });
}

void UserCollection::updateUser(const User& user)
{
    change([&](Connection& connection) { UserTable::update(connection, user); },
           [&](Content& content)
           {
               if (const auto found = UserTable::find(content.users, user); found != content.users.end())
               {
                   *found = user;
               }
           });
}

void UserCollection::deleteUser(const User& user)
{
    change([&](Connection& connection) { UserTable::remove(connection, user); },
           [&](Content& content)
           {
               if (const auto found = UserTable::find(content.users, user); found != content.users.end())
               {
                   content.users.erase(found);
               }
           });
}

bool UserCollection::isGuestEnabled() const noexcept
{
    return m_content->guestEnabled;
}

void UserCollection::setGuestEnabled(bool enabled)
{
    change([&](Connection& connection) { UserTable::setGuestEnabled(connection, enabled); },
           [&](Content& content) { content.guestEnabled = enabled; });
}

template <class Write, class Apply>
void UserCollection::change(Write write, Apply apply)
{
    TessaroStore::instance().change(TessaroStore::machinePlace(), m_content, write, apply);
    m_positions.clear();
}

} // namespace Tessaro
