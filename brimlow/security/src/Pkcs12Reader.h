#pragma once

#include "KeyDerivationBudget.h"
#include "Pkcs12Fault.h"
#include "Secret.h"
#include "openssl.h"

#include <string>
#include <string_view>
#include <vector>

namespace Security
{

// The certificates and private keys of a PKCS #12 file, in their order. The keys are decrypted one by one, when they
// are asked for. Takes any bytes; everything that cannot be read is thrown as a Pkcs12Fault.
class Pkcs12Reader
{
  public:
    struct CertificateBag
    {
        X509Ptr certificate;
        // What the file ties certificates and keys together with; may be empty.
        std::string localKeyId;
    };
    struct KeyBag
    {
        // One of the two.
        EncryptedPkcs8Ptr encrypted;
        Pkcs8Ptr plain;
        std::string localKeyId;
    };

    // The password is lent, for as long as the reader lives.
    Pkcs12Reader(std::string_view content, const Secret& password, KeyDerivationBudget budget = KeyDerivationBudget());

    std::vector<CertificateBag>& certificates() noexcept { return m_certificates; }
    std::vector<KeyBag>& keys() noexcept { return m_keys; }
    // A key costs its rounds here, not when the file is read: a key store has as many keys as it likes.
    KeyPtr decrypt(const KeyBag& bag);

  private:
    void verify(PKCS12& file);
    void readSafe(PKCS7& safe);
    void readBags(STACK_OF(PKCS12_SAFEBAG) * bags);
    template <class Attempt>
    auto withPassword(Attempt attempt) const;

    KeyDerivationBudget m_budget;
    // What is tried, until it is known what opens the file.
    std::vector<const char*> m_passwords;
    int m_passwordLength;
    // Whether the password has been proven to be the right one.
    bool m_verified = false;
    std::vector<CertificateBag> m_certificates;
    std::vector<KeyBag> m_keys;
};

} // namespace Security
