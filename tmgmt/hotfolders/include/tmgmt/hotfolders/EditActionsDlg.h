#pragma once

#include <optional>

#include "brimlow/hotfolder/ActionList.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of a list of actions and their order. Ends with IDOK or IDCANCEL.
class EditActionsDlg : public Dialog
{
  public:
    explicit EditActionsDlg(HotFolders::ActionList actions);

    // After IDOK: the edited list.
    HotFolders::ActionList actions;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;

  private:
    void add();
    void remove();
    void edit();
    // rule is moveUp or moveDown.
    void move(std::optional<int> (*rule)(HotFolders::ActionList&, int) noexcept);

    // The index of the selected row; negative for none.
    int selected() const noexcept;
    void select(int row) noexcept;
    // The action at that index becomes a row there.
    void insertRow(int row);
    void deleteRow(int row) noexcept;
};

} // namespace TMgmt
