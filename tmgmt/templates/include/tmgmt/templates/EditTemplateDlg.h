#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for a new name of a template. Ends with IDOK or IDCANCEL.
class EditTemplateDlg : public Dialog
{
  public:
    // application is the one that has the template; name what the template is called now.
    EditTemplateDlg(const Tessaro::ServerApplication& application, const Core::String& name);

    // After IDOK: the name that the template shall have. Nothing else in the application's folder has it.
    Core::String name;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void showTemplateId();

    Core::String m_applicationPath;
    Core::String m_applicationName;
    Core::String m_formerName;
};

} // namespace TMgmt
