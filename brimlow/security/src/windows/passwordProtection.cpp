#include "passwordProtection.h"

#include "brimlow/system/Exception.h"
#include "platform/handles.h"

#include <dpapi.h>

#include <utility>

namespace Security
{

namespace
{

DATA_BLOB blobOf(const char* bytes, std::size_t size) noexcept
{
    // Input only, although the type does not say so.
    return {static_cast<DWORD>(size), reinterpret_cast<BYTE*>(const_cast<char*>(bytes))};
}

} // namespace

std::string protect(const Secret& password)
{
    DATA_BLOB plain = blobOf(password.get(), static_cast<std::size_t>(password.length()));
    DATA_BLOB encrypted{};
    // Of the whole machine, and not of the user: the server runs as SYSTEM.
    if (!CryptProtectData(&plain, nullptr, nullptr, nullptr, nullptr,
                          CRYPTPROTECT_LOCAL_MACHINE | CRYPTPROTECT_UI_FORBIDDEN, &encrypted))
    {
        throw Core::IOException(L"Windows cannot encrypt the password of the key store", GetLastError());
    }
    const platform::LocalMemory memory(encrypted.pbData);
    return {reinterpret_cast<const char*>(encrypted.pbData), encrypted.cbData};
}

Secret unprotect(std::string&& content)
{
    DATA_BLOB encrypted = blobOf(content.data(), content.size());
    DATA_BLOB plain{};
    if (!CryptUnprotectData(&encrypted, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN, &plain))
    {
        throw Core::IOException(L"Windows cannot decrypt the password of the key store", GetLastError());
    }
    const platform::LocalMemory memory(plain.pbData);
    Secret password(std::string(reinterpret_cast<const char*>(plain.pbData), plain.cbData));
    SecureZeroMemory(plain.pbData, plain.cbData);
    return password;
}

} // namespace Security
