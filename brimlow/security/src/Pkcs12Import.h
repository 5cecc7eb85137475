#pragma once

#include "KeyStore.h"
#include "Pkcs12Reader.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Security
{

// A PKCS #12 file whose certificates are to be stored.
class Pkcs12Import
{
  public:
    enum class Result
    {
        stored,
        allStoredAlready,
        noCertificate,
        // Certificates, but no private key for one of them, neither in the file nor in the key store.
        noKey
    };

    // Throws Pkcs12Fault. The password is lent, for as long as the object lives.
    Pkcs12Import(std::string_view content, const Secret& password, KeyDerivationBudget budget = KeyDerivationBudget());

    // Adds every certificate of the file whose private key is in the file or in the key store, with those of its
    // issuers that are in the file.
    Result into(KeyStore& store);

  private:
    std::vector<X509*> issuersOf(X509& certificate);

    Pkcs12Reader m_file;
    // By keyId.
    std::map<std::string, KeyPtr> m_keys;
};

} // namespace Security
