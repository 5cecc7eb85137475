#include "tmgmt/certificates/SelectCertificateRequestFileNameDlg.h"

#include <commdlg.h>

#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/resources/ids.h"

namespace TMgmt
{

SelectCertificateRequestFileNameDlg::SelectCertificateRequestFileNameDlg(WizImportCertificate& wizard)
    : FileNamePage(wizard, IDD_WIZARD_REQUEST_FILE, L"Certificate Request File Name",
                   L"Your certificate request is saved as a text file with the file name you specify."),
      m_wizard(wizard)
{
}

void SelectCertificateRequestFileNameDlg::onInit()
{
    setText(IDC_WIZARD_FILE, L"C:\\certrequest.txt");
}

FilePicker SelectCertificateRequestFileNameDlg::picker() const
{
    // So the file need not be there. Kept as is: the file of a request is chosen as one to open, though it is
    // written.
    return {.filters = {{L"Text files (*.txt)", L"*.txt"}}, .flags = OFN_PATHMUSTEXIST | OFN_HIDEREADONLY};
}

bool SelectCertificateRequestFileNameDlg::onFinish()
{
    return m_wizard.saveRequest(fileName());
}

} // namespace TMgmt
