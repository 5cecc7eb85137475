#include "tmgmt/certificates/SelectCertificateRequestOpDlg.h"

#include <prsht.h>

#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/resources/ids.h"

namespace TMgmt
{

SelectCertificateRequestOpDlg::SelectCertificateRequestOpDlg(WizImportCertificate& wizard)
    : WizardPage(wizard, IDD_WIZARD_REQUEST_OPERATION, L"Certificate Request",
                 L"You can generate a new Certificate Request, or you can import a Certification's Authority response.")
{
}

void SelectCertificateRequestOpDlg::onInit()
{
    CheckRadioButton(window(), IDC_PREPARE_REQUEST, IDC_PROCESS_ANSWER, IDC_PREPARE_REQUEST);
}

DWORD SelectCertificateRequestOpDlg::buttons() const
{
    return PSWIZB_BACK | PSWIZB_NEXT;
}

std::optional<UINT> SelectCertificateRequestOpDlg::onNext()
{
    return isChecked(IDC_PROCESS_ANSWER) ? IDD_WIZARD_CERTIFICATE_FILE : IDD_WIZARD_SUBJECT;
}

} // namespace TMgmt
