#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for the name of a resource folder. Ends with IDOK or IDCANCEL.
class EditResourceDlg : public Dialog
{
  public:
    // application is the one that has the folder, or shall have it; name what the folder is called now, empty for a
    // new one.
    explicit EditResourceDlg(const Tessaro::ServerApplication& application, const Core::String& name = {});

    // After IDOK: the name that the folder shall have. Nothing else in the application's folder has it.
    Core::String name;

  protected:
    bool onInit() override;
    void onOk() override;

  private:
    Tessaro::ServerApplication m_application;
    Core::String m_formerName;
};

} // namespace TMgmt
