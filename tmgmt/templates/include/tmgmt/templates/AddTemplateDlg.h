#pragma once

#include "brimlow/tessaro/Template.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for a file that shall become a template of an application. Ends with IDOK or IDCANCEL.
class AddTemplateDlg : public Dialog
{
  public:
    // applicationName is the display name of the application.
    explicit AddTemplateDlg(const Core::String& applicationName);

    // After IDOK: the file, which exists.
    Tessaro::Template file;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void showTemplateId();
    void browse();

    Core::String m_applicationName;
};

} // namespace TMgmt
