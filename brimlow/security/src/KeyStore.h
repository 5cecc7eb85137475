#pragma once

#include "Pkcs12Reader.h"
#include "Secret.h"
#include "openssl.h"

#include <string>
#include <string_view>
#include <vector>

namespace Security
{

// What is in the key store while it is read or changed: certificates with their private keys, and private keys that
// wait for a certificate. Keys stay encrypted with the password of the store until one is asked for.
class KeyStore
{
  public:
    struct StoredKey
    {
        // See keyId.
        std::string id;
        EncryptedPkcs8Ptr encrypted;
    };
    struct Identity
    {
        X509Ptr certificate;
        StoredKey key;
        // From the issuer of the certificate upwards.
        std::vector<X509Ptr> issuers;
    };

    // In which a password becomes a key. It is random, or empty for an export: more rounds would protect nothing.
    static constexpr int usualRounds = PKCS12_DEFAULT_ITER;

    // An empty one.
    explicit KeyStore(Secret password, int rounds = usualRounds);
    // Throws Pkcs12Fault.
    KeyStore(std::string_view file, Secret password, KeyDerivationBudget budget = KeyDerivationBudget());
    // The file, as docs/formats.md describes it.
    std::string toFile() const;

    // In the order in which they were stored.
    const std::vector<Identity>& identities() const noexcept { return m_identities; }
    // Null when there is no certificate with that fingerprint.
    const Identity* find(const std::string& fingerprint) const;
    // Throws Pkcs12Fault for a key that cannot be decrypted, or not within the budget.
    KeyPtr decryptKey(const Identity& identity, KeyDerivationBudget budget = KeyDerivationBudget()) const;

    // False when there is no certificate with that fingerprint.
    bool remove(const std::string& fingerprint);
    // Copies the certificates. A key that waited for this certificate waits no longer. False when the certificate is
    // there already.
    bool add(X509& certificate, EVP_PKEY& key, const std::vector<X509*>& issuers);
    void addWaitingKey(EVP_PKEY& key);
    // The same with a key that is here: one that waited, or that of another certificate, which an authority renewed.
    // False when there is no key with that id, or the certificate is there already.
    bool join(X509& certificate, const std::string& keyId, const std::vector<X509*>& issuers);

  private:
    std::vector<StoredKey>::iterator findWaiting(const std::string& id);

    Secret m_password;
    int m_rounds = usualRounds;
    std::vector<Identity> m_identities;
    std::vector<StoredKey> m_waitingKeys;
};

} // namespace Security
