#pragma once

#include "Secret.h"
#include "openssl.h"

#include <string>

namespace Security
{

// A new RSA key of 3072 bits.
KeyPtr generateKey();

// SHA-256 over the public key, which a private key and its certificates have in common.
std::string keyId(EVP_PKEY& key);

// PBES2 with AES-256. rounds: in which the password becomes a key.
EncryptedPkcs8Ptr encryptKey(EVP_PKEY& key, const Secret& password, int rounds);
// Throws Pkcs12Fault where the key is not what encryptKey made with that password.
KeyPtr decryptKey(const X509_SIG& encrypted, const Secret& password);
EncryptedPkcs8Ptr copyOf(const X509_SIG& encrypted);

// Throws Pkcs12Fault for a key that cannot be read, and for one of a kind that servers do not use: RSA and elliptic
// curves are read, DSA and DH are not. Their numbers, which a hostile file chooses, are calculated with at once.
KeyPtr readKey(const PKCS8_PRIV_KEY_INFO& plain);

} // namespace Security
