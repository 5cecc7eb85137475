#include "tmgmt/certificates/CertificateItem.h"

#include <commdlg.h>

#include "brimlow/security/CertStore.h"
#include "tmgmt/certificates/CertificateDlg.h"
#include "tmgmt/certificates/reportFailure.h"
#include "tmgmt/ui/FilePicker.h"

namespace TMgmt
{

using Security::Certificate;
using Security::CertStore;
using Security::SmartPtr;

CertificateItem::CertificateItem(const CSnapInItem& parent, const Certificate& certificate, unsigned index)
    : DeletableRow(parent, ResultNode{.displayName = L"Certificate Item", .image = 7}),
      m_issuer(certificate.getIssuerCN()),
      m_serialNumber(certificate.getSerialNumber()),
      m_subject(certificate.getSubjectCN()),
      m_index(index)
{
}

const wchar_t* CertificateItem::GetResultPaneColInfo(int column)
{
    switch (column)
    {
    case 0:
        return m_serialNumber.c_str();
    case 1:
        return m_issuer.c_str();
    case 2:
        return m_subject.c_str();
    default:
        return L"";
    }
}

HRESULT CertificateItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    switch (command)
    {
    case ID_UNINSTALL_CERTIFICATE:
        return uninstall(console);
    case ID_EXPORT_CERTIFICATE:
        return exportToFile();
    case ID_CERTIFICATE_PROPERTIES:
        return showProperties();
    default:
        return DeletableRow::Command(command, console, type);
    }
}

HRESULT CertificateItem::OnDblClick(Console&)
{
    return showProperties();
}

HRESULT CertificateItem::OnDelete(Console& console)
{
    return uninstall(console);
}

HRESULT CertificateItem::uninstall(Console& console)
{
    try
    {
        const SmartPtr<CertStore> store = CertStore::getCertStoreInstance();
        store->open(false);
        store->deleteIdentity(m_index);
    }
    catch (const Core::Exception& exception)
    {
        reportFailure(exception, certificateErrorCaption);
        return E_FAIL;
    }
    // The list lets this row go, but the caller holds it.
    console.refreshResultList(*lister());
    return S_OK;
}

HRESULT CertificateItem::exportToFile() const
{
    const FilePicker picker{.filters = {{L"Certificate files (*.pfx;*.p12)", L"*.pfx;*.p12"}},
                            .flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_EXPLORER | OFN_ENABLESIZING,
                            .capacity = 260,
                            .title = L"Export Certificate",
                            .defaultExtension = L"p12"};
    const auto file = picker.pickToSave(GetActiveWindow(), {});
    if (!file)
    {
        return S_OK;
    }
    try
    {
        const SmartPtr<CertStore> store = CertStore::getCertStoreInstance();
        store->open(false);
        store->exportPKCS12(m_index, *file);
    }
    catch (const Core::Exception& exception)
    {
        reportFailure(exception, certificateErrorCaption);
        return E_FAIL;
    }
    return S_OK;
}

HRESULT CertificateItem::showProperties() const
{
    try
    {
        const SmartPtr<CertStore> store = CertStore::getCertStoreInstance();
        store->open(false);
        const SmartPtr<Certificate> found = store->find(m_serialNumber, m_issuer, {});
        CertificateDlg(*found).show(GetActiveWindow());
    }
    catch (const Core::Exception& exception)
    {
        reportFailure(exception, certificateErrorCaption);
        return E_FAIL;
    }
    return S_OK;
}

} // namespace TMgmt
