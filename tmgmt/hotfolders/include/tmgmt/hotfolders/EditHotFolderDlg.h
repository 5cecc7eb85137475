#pragma once

#include "brimlow/hotfolder/HotFolder.h"
#include "tmgmt/ui/Dialog.h"

namespace TMgmt
{

// The editor of one hot folder. Ends with IDOK or IDCANCEL. show throws Core::UnreacheableCodeException when OK is
// pressed while no output format is selected.
class EditHotFolderDlg : public Dialog
{
  public:
    explicit EditHotFolderDlg(HotFolders::HotFolder hotFolder = {}, bool restart = false);

    // After IDOK: what shall be stored; it is valid, and its folders exist. After IDCANCEL: to be discarded.
    HotFolders::HotFolder hotFolder;
    // Whether the service shall be restarted afterwards.
    bool restart;

  protected:
    bool onInit() override;
    void onCommand(int control, int notification) override;
    void onOk() override;

  private:
    void fillFormats() noexcept;
    void enableStylesheet(bool enabled) noexcept;
    void browseInput();
    void browseOutput();
    void browseStylesheet();
    void editOnSuccess();
    void editOnFailure();
    void editSettings();
    // The index of the selected output format; negative for none.
    int selectedFormat() const noexcept;
    // Takes the contents of all controls.
    void store();
};

} // namespace TMgmt
