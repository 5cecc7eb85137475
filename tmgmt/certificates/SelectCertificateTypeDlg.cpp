#include "tmgmt/certificates/SelectCertificateTypeDlg.h"

#include <prsht.h>

#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/resources/ids.h"

namespace TMgmt
{

SelectCertificateTypeDlg::SelectCertificateTypeDlg(WizImportCertificate& wizard)
    : WizardPage(wizard, IDD_WIZARD_TYPE, L"Server Certificate",
                 L"There are two methods for assigning a certificate to this KV Rendering Server."),
      m_wizard(wizard)
{
}

void SelectCertificateTypeDlg::onInit()
{
    CheckRadioButton(window(), IDC_SELF_SIGNED, IDC_ISSUED_BY_AUTHORITY, IDC_SELF_SIGNED);
}

DWORD SelectCertificateTypeDlg::buttons() const
{
    return PSWIZB_NEXT;
}

std::optional<UINT> SelectCertificateTypeDlg::onNext()
{
    if (isChecked(IDC_SELF_SIGNED))
    {
        m_wizard.mode = WizImportCertificate::Mode::SelfSigned;
        return IDD_WIZARD_SUBJECT;
    }
    m_wizard.mode = WizImportCertificate::Mode::IssuedByAuthority;
    return IDD_WIZARD_REQUEST_OPERATION;
}

} // namespace TMgmt
