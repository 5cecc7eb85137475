#pragma once

#include "tmgmt/ui/WizardPage.h"

namespace TMgmt
{

class WizImportCertificate;

// Whom the certificate is for.
class SelectCertificateInfoDlg : public WizardPage
{
  public:
    explicit SelectCertificateInfoDlg(WizImportCertificate& wizard);

  protected:
    void onInit() override;
    DWORD buttons() const override;
    std::optional<UINT> onNext() override;
    bool onFinish() override;

  private:
    // Takes the fields, or says what is wrong with them.
    bool takeFields();

    WizImportCertificate& m_wizard;
};

} // namespace TMgmt
