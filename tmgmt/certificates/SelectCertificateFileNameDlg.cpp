#include "tmgmt/certificates/SelectCertificateFileNameDlg.h"

#include <commdlg.h>
#include <shlwapi.h>

#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/certificates/reportFailure.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

SelectCertificateFileNameDlg::SelectCertificateFileNameDlg(WizImportCertificate& wizard)
    // The file has the key too. Kept as is: under the header "Certificate File Name" the page speaks of a private
    // key, and its subtitle begins with "Your can".
    : FileNamePage(wizard, IDD_WIZARD_CERTIFICATE_FILE, L"Certificate File Name",
                   L"Your can import a certificate from a *.p12 or *.pfx file."),
      m_wizard(wizard)
{
}

FilePicker SelectCertificateFileNameDlg::picker() const
{
    return {.filters = {{L"Certificate files (*.pfx;*.p12)", L"*.pfx;*.p12"}},
            .flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY};
}

bool SelectCertificateFileNameDlg::onFinish()
{
    const std::wstring path = fileName();
    if (!PathFileExistsW(path.c_str()))
    {
        showMessage(window(), L"File could not be found!", certificateErrorCaption, MB_OK | MB_ICONERROR);
        return false;
    }
    return m_wizard.importFile(path, window());
}

} // namespace TMgmt
