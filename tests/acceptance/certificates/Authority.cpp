#include "certificates/Authority.h"

#include "kit/ServerFiles.h"
#include "kit/windows.h"

#include <brimlow/system/String.h>

#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/pkcs12.h>

#include <stdexcept>

namespace Acceptance
{
namespace
{

using BioPtr = std::unique_ptr<BIO, Release<BIO, BIO_free_all>>;
using NamePtr = std::unique_ptr<X509_NAME, Release<X509_NAME, X509_NAME_free>>;
using Pkcs12Ptr = std::unique_ptr<PKCS12, Release<PKCS12, PKCS12_free>>;

constexpr long lifetime = 3600; // seconds

template <class Result>
Result need(Result result, const char* what)
{
    if (!result)
    {
        throw std::runtime_error(what);
    }
    return result;
}

KeyPtr makeKey()
{
    return KeyPtr(need(EVP_EC_gen("P-256"), "no key"));
}

NamePtr makeName(const std::wstring& commonName)
{
    NamePtr made(X509_NAME_new());
    const std::string text = narrow(commonName);
    need(X509_NAME_add_entry_by_txt(made.get(), "CN", MBSTRING_UTF8,
                                    reinterpret_cast<const unsigned char*>(text.data()), static_cast<int>(text.size()),
                                    -1, 0),
         "no name");
    return made;
}

// key is null for a certificate alone.
void writeFile(EVP_PKEY* key, X509* certificate, const std::filesystem::path& file, const std::wstring& password)
{
    const Pkcs12Ptr made(need(
        PKCS12_create(narrow(password).c_str(), nullptr, key, certificate, nullptr, 0, 0, 0, 0, 0), "no PKCS #12"));
    const BioPtr memory(BIO_new(BIO_s_mem()));
    need(i2d_PKCS12_bio(memory.get(), made.get()), "no PKCS #12 file");
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &bytes);
    ServerFiles::write(file, {bytes, static_cast<std::size_t>(size)});
}

BioPtr reading(const std::string& content)
{
    return BioPtr(BIO_new_mem_buf(content.data(), static_cast<int>(content.size())));
}

Subject read(const X509_NAME* name)
{
    Subject subject;
    for (int i = 0; i < X509_NAME_entry_count(name); ++i)
    {
        const X509_NAME_ENTRY* const entry = X509_NAME_get_entry(name, i);
        unsigned char* text = nullptr;
        const int length = ASN1_STRING_to_UTF8(&text, X509_NAME_ENTRY_get_data(entry));
        subject[OBJ_nid2sn(OBJ_obj2nid(X509_NAME_ENTRY_get_object(entry)))] =
            Core::String::fromUtf8({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)}).str();
        OPENSSL_free(text);
    }
    return subject;
}

RequestPtr readRequest(const std::string& pem)
{
    RequestPtr request(need(PEM_read_bio_X509_REQ(reading(pem).get(), nullptr, nullptr, nullptr), "no request"));
    if (X509_REQ_verify(request.get(), X509_REQ_get0_pubkey(request.get())) != 1)
    {
        throw std::runtime_error("the request is not signed with its key");
    }
    return request;
}

} // namespace

Authority::Authority() : m_key(makeKey()) {}

void Authority::issue(const std::wstring& commonName, long serialNumber, const std::filesystem::path& file,
                      const std::wstring& password) const
{
    const KeyPtr key = makeKey();
    const CertificatePtr certificate = sign(makeName(commonName).get(), key.get(), serialNumber);
    writeFile(key.get(), certificate.get(), file, password);
}

void Authority::answer(const std::string& request, long serialNumber, const std::filesystem::path& file) const
{
    const RequestPtr asked = readRequest(request);
    const CertificatePtr certificate =
        sign(X509_REQ_get_subject_name(asked.get()), X509_REQ_get0_pubkey(asked.get()), serialNumber);
    writeFile(nullptr, certificate.get(), file, {});
}

CertificatePtr Authority::sign(X509_NAME* subject, EVP_PKEY* key, long serialNumber) const
{
    CertificatePtr certificate(X509_new());
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), serialNumber);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), lifetime);
    X509_set_subject_name(certificate.get(), subject);
    X509_set_issuer_name(certificate.get(), makeName(name).get());
    X509_set_pubkey(certificate.get(), key);
    need(X509_sign(certificate.get(), m_key.get(), EVP_sha256()), "no signature");
    return certificate;
}

const Authority& authority()
{
    static const Authority authority;
    return authority;
}

Subject subjectOfRequest(const std::string& pem)
{
    return read(X509_REQ_get_subject_name(readRequest(pem).get()));
}

Subject subjectOfFile(const std::filesystem::path& file, const std::wstring& password)
{
    const Pkcs12Ptr content(need(d2i_PKCS12_bio(reading(ServerFiles::read(file)).get(), nullptr), "no PKCS #12 file"));
    EVP_PKEY* key = nullptr;
    X509* certificate = nullptr;
    need(PKCS12_parse(content.get(), narrow(password).c_str(), &key, &certificate, nullptr), "another password");
    const KeyPtr ownedKey(need(key, "no key in the file"));
    const CertificatePtr ownedCertificate(need(certificate, "no certificate in the file"));
    need(X509_check_private_key(certificate, key), "the key is not the certificate's");
    return read(X509_get_subject_name(certificate));
}

} // namespace Acceptance
