#pragma once

#include <openssl/evp.h>
#include <openssl/pkcs12.h>
#include <openssl/x509v3.h>

#include <memory>

// Who frees what OpenSSL hands out.
namespace Security
{

template <auto Free>
struct Freeing
{
    template <class T>
    void operator()(T* object) const noexcept
    {
        Free(object);
    }
};

template <class T, auto Free>
using Owned = std::unique_ptr<T, Freeing<Free>>;

using KeyPtr = Owned<EVP_PKEY, EVP_PKEY_free>;
using X509Ptr = Owned<X509, X509_free>;
using RequestPtr = Owned<X509_REQ, X509_REQ_free>;
using NamePtr = Owned<X509_NAME, X509_NAME_free>;
using Pkcs12Ptr = Owned<PKCS12, PKCS12_free>;
using GeneralNamesPtr = Owned<GENERAL_NAMES, GENERAL_NAMES_free>;
// A private key in PKCS #8 form; freeing wipes it. The other one is encrypted.
using Pkcs8Ptr = Owned<PKCS8_PRIV_KEY_INFO, PKCS8_PRIV_KEY_INFO_free>;
using EncryptedPkcs8Ptr = Owned<X509_SIG, X509_SIG_free>;

inline void freeMemory(unsigned char* memory) noexcept
{
    OPENSSL_free(memory);
}
using MemoryPtr = Owned<unsigned char, freeMemory>;

inline void freeBags(STACK_OF(PKCS12_SAFEBAG) * bags) noexcept
{
    sk_PKCS12_SAFEBAG_pop_free(bags, PKCS12_SAFEBAG_free);
}
inline void freeSafes(STACK_OF(PKCS7) * safes) noexcept
{
    sk_PKCS7_pop_free(safes, PKCS7_free);
}
inline void freeExtensions(STACK_OF(X509_EXTENSION) * extensions) noexcept
{
    sk_X509_EXTENSION_pop_free(extensions, X509_EXTENSION_free);
}
using BagsPtr = Owned<STACK_OF(PKCS12_SAFEBAG), freeBags>;
using SafesPtr = Owned<STACK_OF(PKCS7), freeSafes>;
using ExtensionsPtr = Owned<STACK_OF(X509_EXTENSION), freeExtensions>;

} // namespace Security
