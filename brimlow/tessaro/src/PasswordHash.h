#pragma once

#include "brimlow/system/String.h"

#include <array>
#include <span>

namespace Tessaro
{

// What is kept of a password: PBKDF2-HMAC-SHA256 of its UTF-8, with what it was made with, so that the cost can grow
// later without making the stored ones worthless.
class PasswordHash
{
  public:
    // Of a password that is new: with a random salt, at the cost that counts today. Throws Core::Exception when the
    // system has no random numbers.
    explicit PasswordHash(const Core::String& password);

    // Of a password with a given salt. iterations is at least 1.
    PasswordHash(const Core::String& password, std::span<const unsigned char> salt, int iterations);

    // "$pbkdf2-sha256$i=<iterations>$<salt>$<hash>", salt and hash in base64 without padding.
    const Core::String& text() const noexcept { return m_text; }

  private:
    static constexpr int currentIterations = 600'000;
    using Salt = std::array<unsigned char, 16>;
    static Salt randomSalt();

    Core::String m_text;
};

} // namespace Tessaro
