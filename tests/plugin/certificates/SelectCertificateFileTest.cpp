#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/Dialog.h"

namespace
{

using Acceptance::ModalWindow;

// Dialog 291, which nothing opens.
class SelectCertificateFile : public TMgmt::Dialog
{
  public:
    SelectCertificateFile() : Dialog(IDD_SELECT_CERTIFICATE_FILE) {}

  protected:
    bool onInit() override { return true; }
};

class SelectCertificateFileTest : public DialogTestBase
{
};

// Proves: nothing opens the dialog "Select Certificate File".
TEST_F(SelectCertificateFileTest, isThereThoughNothingOpensIt)
{
    SelectCertificateFile dialog;
    EXPECT_EQ(IDD_SELECT_CERTIFICATE_FILE, 291);
    robot().dialog(L"Select Certificate File",
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                              L"-1 Static &File name:",
                                                                              L"299 Edit ",
                                                                              L"298 Button &Browse",
                                                                              L"1 Button OK",
                                                                              L"2 Button Cancel",
                                                                          }));
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

} // namespace
