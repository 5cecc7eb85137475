#include "certificateFixture.h"

#include "KeyStoreFile.h"
#include "Pkcs12Writer.h"
#include "SelfSigned.h"
#include "passwordProtection.h"
#include "privateKey.h"

#include <brimlow/system/AtomicFile.h>

#include <openssl/asn1.h>

namespace Bench
{
namespace
{

Security::Subject subject()
{
    Security::CertificateInfo info;
    info.setOrganizationName(L"Bench");
    info.setOrganizationalUnit(L"Bench");
    info.setCommonName(L"bench.example.com");
    info.setCountry(L"FR");
    info.setAddress(L"1, rue de la Gare");
    info.setState(L"Bretagne");
    info.setCity(L"Rennes");
    info.setZip(L"35000");
    info.setEmail(L"bench@example.com");
    return Security::Subject(info);
}

} // namespace

void makeCertificates(std::size_t size)
{
    const auto key = Security::generateKey();
    const auto certificate = Security::makeSelfSigned(*key, subject());
    // The library makes the key store and its password; then all of it is written at once, each certificate with
    // another serial number and each key with another id.
    const Core::String path = Security::KeyStoreFile::machinePath();
    Security::KeyStoreFile(path).change([&](Security::KeyStore& store) { store.add(*certificate, *key, {}); });
    const Security::Secret password = Security::unprotect(Core::IO::AtomicFile::read(path + L".password"));
    const auto encrypted = Security::encryptKey(*key, password, Security::KeyStore::usualRounds);
    Security::Pkcs12Writer writer;
    for (std::size_t number = 0; number < size; ++number)
    {
        ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()), number + 1);
        // A copy is made of the encoding, which was kept since the certificate was signed.
        i2d_re_X509_tbs(certificate.get(), nullptr);
        const std::string id = "key " + std::to_string(number);
        writer.addCertificate(*certificate, id);
        writer.addKey(*encrypted, id);
    }
    Core::IO::AtomicFile::write(path, writer.finish(password, Security::KeyStore::usualRounds),
                                Core::IO::Access::Private);
}

} // namespace Bench
