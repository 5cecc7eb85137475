#pragma once

#include "tmgmt/certificates/FileNamePage.h"

namespace TMgmt
{

class WizImportCertificate;

// Which file has the certificate that an authority returned.
class SelectCertificateFileNameDlg : public FileNamePage
{
  public:
    explicit SelectCertificateFileNameDlg(WizImportCertificate& wizard);

  protected:
    FilePicker picker() const override;
    bool onFinish() override;

  private:
    WizImportCertificate& m_wizard;
};

} // namespace TMgmt
