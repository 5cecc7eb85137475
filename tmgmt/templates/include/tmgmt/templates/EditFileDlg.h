#pragma once

#include "brimlow/system/String.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for another name for a file of a resource folder. Ends with IDOK or IDCANCEL.
class EditFileDlg : public Dialog
{
  public:
    // name is what the file is called now, folder the full path of its folder.
    EditFileDlg(const Core::String& name, const Core::String& folder);

    // After IDOK: the name that the file shall have. Nothing else in the folder has it.
    Core::String name;

  protected:
    bool onInit() override;
    void onOk() override;

  private:
    Core::String m_formerName;
    Core::String m_folder;
};

} // namespace TMgmt
