#pragma once

#include <functional>

#include "brimlow/security/CertificateInfo.h"
#include "tmgmt/certificates/SelectCertificateFileNameDlg.h"
#include "tmgmt/certificates/SelectCertificateInfoDlg.h"
#include "tmgmt/certificates/SelectCertificateRequestFileNameDlg.h"
#include "tmgmt/certificates/SelectCertificateRequestOpDlg.h"
#include "tmgmt/certificates/SelectCertificateTypeDlg.h"
#include "tmgmt/ui/Wizard.h"

namespace TMgmt
{

// The wizard that gives the server a certificate: makes a self-signed one, makes the request for an authority, or
// imports what the authority returned.
class WizImportCertificate : public Wizard
{
  public:
    enum class Mode
    {
        SelfSigned,
        IssuedByAuthority
    };

    Mode mode = Mode::SelfSigned;

    // The steps that its pages take. What the security library or the settings file refuses is shown in a message box,
    // titled "Import Certificate", and the step returns false: the page stays, with all that was entered.

    bool readRememberedSubject(Security::CertificateInfo& subject);
    // Takes whom the certificate is for, and remembers it for the next time.
    bool takeSubject(const Security::CertificateInfo& subject);
    bool createSelfSigned();
    bool saveRequest(const std::wstring& path);
    // Asks for the file's password, in a dialog of owner's, where it needs one; false when that is cancelled, too.
    bool importFile(const std::wstring& path, HWND owner);

  private:
    bool attempt(const std::function<bool()>& step);

    Security::CertificateInfo m_subject;
    // The request for this subject, empty until it is made. It is written again where the first file could not be:
    // each request leaves a private key in the store that waits for its answer.
    Core::String m_request;

    // In the order of the sheet.
    SelectCertificateTypeDlg m_typePage{*this};
    SelectCertificateRequestOpDlg m_requestOpPage{*this};
    SelectCertificateInfoDlg m_infoPage{*this};
    SelectCertificateRequestFileNameDlg m_requestFilePage{*this};
    SelectCertificateFileNameDlg m_certificateFilePage{*this};
};

} // namespace TMgmt
