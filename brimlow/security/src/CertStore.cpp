#include "brimlow/security/CertStore.h"

#include "KeyStoreFile.h"
#include "Pkcs12Import.h"
#include "Pkcs12Writer.h"
#include "Request.h"
#include "SelfSigned.h"
#include "describe.h"
#include "importFile.h"
#include "privateKey.h"

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>
#include <utility>

namespace Security
{

namespace
{

[[noreturn]] void refuseMissing(const Certificate& certificate, const KeyStoreFile& file)
{
    throw Core::Exception(Core::format(L"The certificate of \"{0}\" with the serial number {1} is not in "
                                       L"the key store \"{2}\" any more. Please refresh the list.",
                                       certificate.getSubjectCN(), certificate.getSerialNumber(), file.path()));
}

} // namespace

SmartPtr<CertStore> CertStore::getCertStoreInstance()
{
    static const SmartPtr<CertStore> instance(new CertStore);
    return instance;
}

void CertStore::open(bool anew)
{
    if (m_read && !anew)
    {
        return;
    }
    const KeyStore store = KeyStoreFile(KeyStoreFile::machinePath()).read();
    std::vector<SmartPtr<Certificate>> listed;
    for (const KeyStore::Identity& identity : store.identities())
    {
        listed.emplace_back(new Certificate(describe(*identity.certificate)));
    }
    m_listed = std::move(listed);
    m_read = true;
}

void CertStore::deleteIdentity(unsigned index)
{
    const Certificate& certificate = listedAt(index);
    const KeyStoreFile file(KeyStoreFile::machinePath());
    file.change(
        [&](KeyStore& store)
        {
            if (!store.remove(certificate.getFingerprint()))
            {
                refuseMissing(certificate, file);
            }
        });
}

void CertStore::exportPKCS12(unsigned index, const Core::String& fileName)
{
    const Certificate& certificate = listedAt(index);
    const KeyStoreFile file(KeyStoreFile::machinePath());
    const KeyStore store = file.read();
    const KeyStore::Identity* identity = store.find(certificate.getFingerprint());
    if (!identity)
    {
        refuseMissing(certificate, file);
    }
    std::vector<X509*> issuers;
    for (const X509Ptr& issuer : identity->issuers)
    {
        issuers.push_back(issuer.get());
    }
    // What is exported is in the form of a key store with this certificate alone.
    KeyStore exported{Secret()};
    exported.add(*identity->certificate, *file.decryptKey(store, *identity), issuers);
    Core::IO::AtomicFile::write(fileName, exported.toFile(), Core::IO::Access::Private);
}

SmartPtr<Certificate> CertStore::find(const Core::String& serialNumber, const Core::String& issuerName,
                                      const std::string& fingerprint)
{
    open(false);
    const auto found =
        std::ranges::find_if(m_listed,
                             [&](const SmartPtr<Certificate>& certificate)
                             {
                                 return certificate->getSerialNumber() == serialNumber &&
                                        certificate->getIssuerCN() == issuerName &&
                                        (fingerprint.empty() || certificate->getFingerprint() == fingerprint);
                             });
    return found == m_listed.end() ? nullptr : *found;
}

void CertStore::createPKCS12(const CertificateInfo& info)
{
    const Subject subject(info);
    const KeyPtr key = generateKey();
    const X509Ptr certificate = makeSelfSigned(*key, subject);
    KeyStoreFile(KeyStoreFile::machinePath()).change([&](KeyStore& store) { store.add(*certificate, *key, {}); });
}

Core::String CertStore::createPKCS12Request(const CertificateInfo& info)
{
    const Subject subject(info);
    const KeyPtr key = generateKey();
    const std::string request = makeRequest(*key, subject);
    KeyStoreFile(KeyStoreFile::machinePath()).change([&](KeyStore& store) { store.addWaitingKey(*key); });
    return Core::String::fromUtf8(request);
}

void CertStore::importPKCS12(const Core::String& fileName)
{
    importFile(KeyStoreFile(KeyStoreFile::machinePath()), fileName, Secret());
}

void CertStore::importPKCS12(const Core::String& fileName, const Core::String& password)
{
    importFile(KeyStoreFile(KeyStoreFile::machinePath()), fileName, Secret(password.toUtf8()));
}

const Certificate& CertStore::listedAt(unsigned index)
{
    open(false);
    if (index >= m_listed.size())
    {
        throw Core::Exception(L"There is no such certificate in the list any more. Please refresh the list.");
    }
    return *m_listed[index];
}

} // namespace Security
