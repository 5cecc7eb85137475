#pragma once

#include "brimlow/system/String.h"

namespace Tessaro
{

// A user account of the server. A value: changes reach the server through UserCollection only.
class User
{
  public:
    // No name, no password, not enabled.
    User() noexcept = default;

    // What tells the account from all others, now and later; -1 when it is not stored yet.
    int getId() const noexcept { return m_id; }

    const Core::String& getUsername() const noexcept { return m_username; }
    void setUsername(const Core::String& username) { m_username = username; }

    // The stored form, from which the password cannot be had back: "$pbkdf2-sha256$i=<iterations>$<salt>$<hash>", salt
    // and hash in base64 without padding. Empty for an account that was never given a password.
    const Core::String& getPassword() const noexcept { return m_password; }
    // Takes a password as it was typed and keeps its stored form, with a new random salt. That takes about a quarter
    // of a second, deliberately. Throws Core::Exception when the system has no random numbers.
    void setPasswordEncoded(const Core::String& password);

    bool isEnabled() const noexcept { return m_enabled; }
    void setEnable(bool enable) noexcept { m_enabled = enable; }

    bool operator==(const User&) const = default;

  private:
    friend class UserTable;

    int m_id = -1;
    Core::String m_username;
    Core::String m_password;
    bool m_enabled = false;
};

} // namespace Tessaro
