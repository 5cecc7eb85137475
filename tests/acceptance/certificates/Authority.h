#pragma once

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace Acceptance
{

template <class Object, void (*release)(Object*)>
struct Release
{
    void operator()(Object* object) const { release(object); }
};
using KeyPtr = std::unique_ptr<EVP_PKEY, Release<EVP_PKEY, EVP_PKEY_free>>;
using CertificatePtr = std::unique_ptr<X509, Release<X509, X509_free>>;
using RequestPtr = std::unique_ptr<X509_REQ, Release<X509_REQ, X509_REQ_free>>;

// A certification authority, and all else that other programs do with certificate files. Throws std::runtime_error
// where OpenSSL cannot do what is asked for.
class Authority
{
  public:
    // The common name of the issuer of all that it signs.
    static constexpr wchar_t name[] = L"Test Authority";

    Authority();

    // Writes a PKCS #12 file with a new key and a certificate for that common name. The serial number is of one byte.
    void issue(const std::wstring& commonName, long serialNumber, const std::filesystem::path& file,
               const std::wstring& password = {}) const;
    // Signs a request, in PEM, and writes the certificate alone to a PKCS #12 file.
    void answer(const std::string& request, long serialNumber, const std::filesystem::path& file) const;

  private:
    CertificatePtr sign(X509_NAME* subject, EVP_PKEY* key, long serialNumber) const;

    KeyPtr m_key;
};

// One for all tests.
const Authority& authority();

// What a name, or the subject of a request or certificate, says: the texts by their short names ("CN", "O", …).
using Subject = std::map<std::string, std::wstring>;

// Of a request in PEM, which is signed with its own key.
Subject subjectOfRequest(const std::string& pem);

// Of the certificate in a PKCS #12 file whose key belongs to it.
Subject subjectOfFile(const std::filesystem::path& file, const std::wstring& password = {});

} // namespace Acceptance
