#pragma once

#include "brimlow/system/String.h"
#include "brimlow/tessaro/XsltEngine.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a new or an existing application. Ends with IDOK or IDCANCEL.
class EditApplicationDlg : public Dialog
{
  public:
    // name is what the application is called now, empty for a new one.
    explicit EditApplicationDlg(const Core::String& name = {}, Tessaro::XsltEngine engine = Tessaro::XsltEngine::Msxml);

    // After IDOK: the name that the application shall have. No other folder or file has it among those of the
    // applications.
    Core::String name;
    // After IDOK: one of the two that there are.
    Tessaro::XsltEngine engine;

  protected:
    bool onInit() override;
    void onOk() override;

  private:
    Core::String m_formerName;
};

} // namespace TMgmt
