#include "tmgmt/certificates/CertificateDlg.h"

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

CertificateDlg::CertificateDlg(const Security::Certificate& certificate) noexcept
    : Dialog(IDD_CERTIFICATE), m_certificate(certificate)
{
}

bool CertificateDlg::onInit()
{
    setText(IDC_CERTIFICATE_ISSUER, m_certificate.getIssuerCN().str());
    setText(IDC_CERTIFICATE_SUBJECT, m_certificate.getSubjectCN().str());
    setText(IDC_CERTIFICATE_SERIAL_NUMBER, m_certificate.getSerialNumber().str());
    setFocus(IDOK);
    return false;
}

} // namespace TMgmt
