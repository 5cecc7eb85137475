#include "tmgmt/certificates/CertificateCollectionItem.h"

#include "brimlow/security/CertIterator.h"
#include "brimlow/security/CertStore.h"
#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/certificates/reportFailure.h"

namespace TMgmt
{

CertificateCollectionItem::CertificateCollectionItem()
    : Collection(ScopeNode{.displayName = L"Server Certificates", .image = 7, .childCount = 0})
{
}

HRESULT CertificateCollectionItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_INSTALL_CERTIFICATE ? install(console) : Collection::Command(command, console, type);
}

HRESULT CertificateCollectionItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    if (selecting)
    {
        console.switchSortingOff();
        console.insertColumn(0, L"Serial No", 150);
        console.insertColumn(1, L"Issuer By", 100);
        console.insertColumn(2, L"Issued To", 50);
        console.refreshResultList(*this);
    }
    return S_OK;
}

CertificateCollectionItem::Rows CertificateCollectionItem::readRows()
{
    Rows rows;
    try
    {
        const auto store = Security::CertStore::getCertStoreInstance();
        store->open(true);
        Security::CertIterator certificates(*store);
        while (const auto certificate = certificates.getNext())
        {
            rows.emplace_back(new CertificateItem(*this, *certificate, static_cast<unsigned>(rows.size())));
        }
    }
    catch (const Core::Exception& exception)
    {
        reportFailure(exception, certificateErrorCaption);
    }
    return rows;
}

HRESULT CertificateCollectionItem::install(Console& console)
{
    if (WizImportCertificate().show(GetActiveWindow()))
    {
        console.refreshResultList(*this);
    }
    return S_OK;
}

} // namespace TMgmt
