#include "brimlow/tessaro/User.h"

#include "PasswordHash.h"

namespace Tessaro
{

void User::setPasswordEncoded(const Core::String& password)
{
    m_password = PasswordHash(password).text();
}

} // namespace Tessaro
