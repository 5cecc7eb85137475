#include "tmgmt/certificates/SelectCertificateInfoDlg.h"

#include <prsht.h>

#include <array>
#include <tuple>

#include "tmgmt/certificates/WizImportCertificate.h"
#include "tmgmt/certificates/reportFailure.h"
#include "tmgmt/certificates/rules/CertificateSubject.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{
namespace
{

// In the order of subjectFields.
constexpr std::array<int, std::tuple_size_v<decltype(subjectFields)>> fieldControls{
    IDC_SUBJECT_ORGANIZATION, IDC_SUBJECT_UNIT, IDC_SUBJECT_COMMON_NAME, IDC_SUBJECT_COUNTRY, IDC_SUBJECT_ADDRESS,
    IDC_SUBJECT_STATE,        IDC_SUBJECT_CITY, IDC_SUBJECT_ZIP,         IDC_SUBJECT_EMAIL};

constexpr WPARAM countryLength = 2;

} // namespace

SelectCertificateInfoDlg::SelectCertificateInfoDlg(WizImportCertificate& wizard)
    // Kept as is: the subtitle ends in "distinguishes it from organizations".
    : WizardPage(wizard, IDD_WIZARD_SUBJECT, L"Certificate Information",
                 L"Your certificate must include information about your organization that distinguishes it from "
                 L"organizations."),
      m_wizard(wizard)
{
}

void SelectCertificateInfoDlg::onInit()
{
    SendMessageW(item(IDC_SUBJECT_COUNTRY), EM_LIMITTEXT, countryLength, 0);
    Security::CertificateInfo subject;
    if (m_wizard.readRememberedSubject(subject))
    {
        for (std::size_t i = 0; i < subjectFields.size(); ++i)
        {
            setText(fieldControls[i], (subject.*subjectFields[i].get)().str());
        }
    }
}

DWORD SelectCertificateInfoDlg::buttons() const
{
    return PSWIZB_BACK | (m_wizard.mode == WizImportCertificate::Mode::SelfSigned ? PSWIZB_FINISH : PSWIZB_NEXT);
}

std::optional<UINT> SelectCertificateInfoDlg::onNext()
{
    return takeFields() ? std::optional<UINT>(IDD_WIZARD_REQUEST_FILE) : std::nullopt;
}

bool SelectCertificateInfoDlg::onFinish()
{
    return takeFields() && m_wizard.createSelfSigned();
}

bool SelectCertificateInfoDlg::takeFields()
{
    Security::CertificateInfo entered;
    for (std::size_t i = 0; i < subjectFields.size(); ++i)
    {
        (entered.*subjectFields[i].set)(text(fieldControls[i]));
    }
    const Security::CertificateInfo subject = trimmed(entered);
    if (const wchar_t* const fault = faultOf(subject))
    {
        showMessage(window(), fault, certificateErrorCaption, MB_OK | MB_ICONERROR);
        return false;
    }
    return m_wizard.takeSubject(subject);
}

} // namespace TMgmt
