#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for one more user who may use the templates of an application. Ends with IDOK or IDCANCEL. show throws
// Core::Exception when the user accounts cannot be read.
class AddTemplateUserDlg : public Dialog
{
  public:
    explicit AddTemplateUserDlg(const Tessaro::ServerApplication& application);

    // After IDOK: with the user who was chosen, not stored yet.
    Tessaro::ServerApplication application;

  protected:
    bool onInit() override;
    void onOk() override;
};

} // namespace TMgmt
