#include "PasswordHash.h"

#include "brimlow/system/Exception.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <string>

namespace Tessaro
{

namespace
{

// The password as bytes, wiped when they are no longer needed.
class PasswordBytes
{
  public:
    explicit PasswordBytes(const Core::String& password) : m_bytes(password.toUtf8()) {}
    PasswordBytes(const PasswordBytes&) = delete;
    PasswordBytes& operator=(const PasswordBytes&) = delete;
    ~PasswordBytes() { OPENSSL_cleanse(m_bytes.data(), m_bytes.size()); }

    const char* data() const noexcept { return m_bytes.data(); }
    int size() const noexcept { return static_cast<int>(m_bytes.size()); }

  private:
    std::string m_bytes;
};

std::string base64WithoutPadding(std::span<const unsigned char> bytes)
{
    // Four characters for each begun three bytes, and the zero that is written behind them.
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()), bytes.data(), static_cast<int>(bytes.size()));
    text.resize((bytes.size() * 8 + 5) / 6);
    return text;
}

} // namespace

PasswordHash::PasswordHash(const Core::String& password) : PasswordHash(password, randomSalt(), currentIterations) {}

PasswordHash::PasswordHash(const Core::String& password, std::span<const unsigned char> salt, int iterations)
{
    const PasswordBytes bytes(password);
    std::array<unsigned char, 32> hash{};
    if (PKCS5_PBKDF2_HMAC(bytes.data(), bytes.size(), salt.data(), static_cast<int>(salt.size()), iterations,
                          EVP_sha256(), static_cast<int>(hash.size()), hash.data()) != 1)
    {
        throw Core::Exception(L"The password cannot be encoded: the cryptographic library refuses. Please try again.");
    }
    m_text = Core::String::fromUtf8("$pbkdf2-sha256$i=" + std::to_string(iterations) + "$" +
                                    base64WithoutPadding(salt) + "$" + base64WithoutPadding(hash));
}

PasswordHash::Salt PasswordHash::randomSalt()
{
    Salt salt{};
    if (RAND_bytes(salt.data(), static_cast<int>(salt.size())) != 1)
    {
        throw Core::Exception(L"The password cannot be encoded: the system has no random numbers. Please try again.");
    }
    return salt;
}

} // namespace Tessaro
