#pragma once

#include "brimlow/security/Certificate.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Shows what a certificate says about itself.
class CertificateDlg : public Dialog
{
  public:
    // The certificate outlives the dialog.
    explicit CertificateDlg(const Security::Certificate& certificate) noexcept;

  protected:
    bool onInit() override;

  private:
    const Security::Certificate& m_certificate;
};

} // namespace TMgmt
