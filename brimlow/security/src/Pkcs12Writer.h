#pragma once

#include "Secret.h"
#include "openssl.h"

#include <string>

namespace Security
{

// Makes a PKCS #12 file: the certificates encrypted by PBES2 with AES-256, then the keys, which are encrypted already,
// all protected by an HMAC with SHA-256.
class Pkcs12Writer
{
  public:
    Pkcs12Writer();

    // Certificates and keys go into the file in the order of the calls. The id ties them together; without one a
    // certificate belongs to no key.
    void addCertificate(X509& certificate, const std::string& localKeyId = {});
    void addKey(const X509_SIG& encryptedKey, const std::string& localKeyId);

    // rounds: in which the password becomes a key, for the certificates and again for the HMAC.
    std::string finish(const Secret& password, int rounds) const;

  private:
    BagsPtr m_certificates;
    BagsPtr m_keys;
};

} // namespace Security
