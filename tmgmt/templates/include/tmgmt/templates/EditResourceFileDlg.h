#pragma once

#include "brimlow/tessaro/ResourceFile.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// Asks for a file that shall be put into a resource folder. Ends with IDOK or IDCANCEL.
class EditResourceFileDlg : public Dialog
{
  public:
    EditResourceFileDlg() noexcept;

    // After IDOK: an existing file.
    Tessaro::ResourceFile file;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void browse();
};

} // namespace TMgmt
