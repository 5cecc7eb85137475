#pragma once

#include "brimlow/hotfolder/Action.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of one action. Ends with IDOK or IDCANCEL.
class EditHotFolderActionDlg : public Dialog
{
  public:
    explicit EditHotFolderActionDlg(HotFolders::Action action = {});

    // After IDOK: the chosen kind with its own field, which may be empty. The other kinds' fields are what they were.
    HotFolders::Action action;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void choose(int button) noexcept;
};

} // namespace TMgmt
