#pragma once

#include <string>

#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The additional parameters of a hot folder. Ends with IDOK or IDCANCEL.
class HotFolderSettingsDlg : public Dialog
{
  public:
    explicit HotFolderSettingsDlg(std::wstring baseUrl);

    // After IDOK: what was entered, whatever it is.
    std::wstring baseUrl;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;
};

} // namespace TMgmt
