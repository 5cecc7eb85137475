#pragma once

#include "tmgmt/ui/WizardPage.h"

namespace TMgmt
{

class WizImportCertificate;

// Whether an authority is to be asked, or has answered.
class SelectCertificateRequestOpDlg : public WizardPage
{
  public:
    explicit SelectCertificateRequestOpDlg(WizImportCertificate& wizard);

  protected:
    void onInit() override;
    DWORD buttons() const override;
    std::optional<UINT> onNext() override;
};

} // namespace TMgmt
