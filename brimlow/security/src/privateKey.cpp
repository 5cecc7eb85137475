#include "privateKey.h"

#include "Pkcs12Fault.h"
#include "failure.h"

#include <openssl/err.h>

namespace Security
{

KeyPtr generateKey()
{
    return KeyPtr(check(EVP_RSA_gen(3072), L"A private key cannot be made"));
}

std::string keyId(EVP_PKEY& key)
{
    constexpr wchar_t failure[] = L"A public key cannot be read";
    unsigned char* bytes = nullptr;
    const int size = check(i2d_PUBKEY(&key, &bytes), failure);
    const MemoryPtr owner(bytes);
    std::string digest(static_cast<std::size_t>(EVP_MD_get_size(EVP_sha256())), '\0');
    check(EVP_Digest(bytes, static_cast<std::size_t>(size), reinterpret_cast<unsigned char*>(digest.data()), nullptr,
                     EVP_sha256(), nullptr),
          failure);
    return digest;
}

EncryptedPkcs8Ptr encryptKey(EVP_PKEY& key, const Secret& password, int rounds)
{
    constexpr wchar_t failure[] = L"A private key cannot be encrypted";
    const Pkcs8Ptr plain(check(EVP_PKEY2PKCS8(&key), failure));
    return EncryptedPkcs8Ptr(
        check(PKCS8_encrypt(-1, EVP_aes_256_cbc(), password.get(), password.length(), nullptr, 0, rounds, plain.get()),
              failure));
}

KeyPtr decryptKey(const X509_SIG& encrypted, const Secret& password)
{
    const Pkcs8Ptr plain(PKCS8_decrypt(&encrypted, password.get(), password.length()));
    if (!plain)
    {
        ERR_clear_error();
        throw Pkcs12Fault::damaged;
    }
    return readKey(*plain);
}

EncryptedPkcs8Ptr copyOf(const X509_SIG& encrypted)
{
    return EncryptedPkcs8Ptr(static_cast<X509_SIG*>(checkMemory(ASN1_item_dup(ASN1_ITEM_rptr(X509_SIG), &encrypted))));
}

KeyPtr readKey(const PKCS8_PRIV_KEY_INFO& plain)
{
    const ASN1_OBJECT* algorithm = nullptr;
    PKCS8_pkey_get0(&algorithm, nullptr, nullptr, nullptr, &plain);
    switch (OBJ_obj2nid(algorithm))
    {
    case NID_rsaEncryption:
    case NID_rsassaPss:
    case NID_X9_62_id_ecPublicKey:
    case NID_ED25519:
    case NID_ED448:
        break;
    default:
        throw Pkcs12Fault::unsupported;
    }
    KeyPtr key(EVP_PKCS82PKEY(&plain));
    if (!key)
    {
        ERR_clear_error();
        throw Pkcs12Fault::damaged;
    }
    return key;
}

} // namespace Security
