#pragma once

#include "tmgmt/ui/WizardPage.h"

namespace TMgmt
{

class WizImportCertificate;

// Who signs the certificate.
class SelectCertificateTypeDlg : public WizardPage
{
  public:
    explicit SelectCertificateTypeDlg(WizImportCertificate& wizard);

  protected:
    void onInit() override;
    DWORD buttons() const override;
    std::optional<UINT> onNext() override;

  private:
    WizImportCertificate& m_wizard;
};

} // namespace TMgmt
