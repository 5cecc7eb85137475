#include "sampleData.h"

#include "brimlow/security/CertIterator.h"
#include "brimlow/security/CertStore.h"
#include "brimlow/security/CertificateInfo.h"

namespace SampleData
{

void addCertificate()
{
    const auto store = Security::CertStore::getCertStoreInstance();
    store->open(true);
    if (Security::CertIterator(*store).getNext())
    {
        return;
    }
    Security::CertificateInfo info;
    info.setOrganizationName(L"Example Print & Mail");
    info.setOrganizationalUnit(L"Document Services");
    info.setCommonName(L"render.example.com");
    info.setCountry(L"FR");
    info.setAddress(L"12, rue de la Gare");
    info.setState(L"Bretagne");
    info.setCity(L"Rennes");
    info.setZip(L"35000");
    info.setEmail(L"render@example.com");
    store->createPKCS12(info);
}

} // namespace SampleData
