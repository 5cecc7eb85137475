#include "Secret.h"

#include "failure.h"

#include <openssl/crypto.h>
#include <openssl/rand.h>

#include <array>
#include <utility>

namespace Security
{

Secret::Secret(std::string&& text) : m_text(text.c_str(), text.c_str() + text.size() + 1)
{
    OPENSSL_cleanse(text.data(), text.size());
    text.clear();
}

Secret Secret::random()
{
    std::array<unsigned char, 32> bytes;
    check(RAND_priv_bytes(bytes.data(), static_cast<int>(bytes.size())), L"No password can be chosen");
    std::string text;
    text.reserve(2 * bytes.size());
    for (const unsigned char byte : bytes)
    {
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 15];
    }
    OPENSSL_cleanse(bytes.data(), bytes.size());
    return Secret(std::move(text));
}

Secret& Secret::operator=(Secret&& other) noexcept
{
    if (this != &other)
    {
        wipe();
        m_text = std::move(other.m_text);
    }
    return *this;
}

void Secret::wipe() noexcept
{
    OPENSSL_cleanse(m_text.data(), m_text.size());
}

} // namespace Security
