#pragma once

#include "tmgmt/certificates/FileNamePage.h"

namespace TMgmt
{

class WizImportCertificate;

// Where the request for an authority goes.
class SelectCertificateRequestFileNameDlg : public FileNamePage
{
  public:
    explicit SelectCertificateRequestFileNameDlg(WizImportCertificate& wizard);

  protected:
    void onInit() override;
    FilePicker picker() const override;
    bool onFinish() override;

  private:
    WizImportCertificate& m_wizard;
};

} // namespace TMgmt
