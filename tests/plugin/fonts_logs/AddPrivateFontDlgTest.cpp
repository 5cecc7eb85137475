#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/fonts_logs/AddPrivateFontDlg.h"

namespace
{

using AddPrivateFontDlgTest = DialogTestBase;

TEST_F(AddPrivateFontDlgTest, hasTheseControls)
{
    TMgmt::AddPrivateFontDlg dialog;
    robot().dialog(L"Edit Private Font",
                   [](Acceptance::ModalWindow& window)
                   {
                       EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                                 (std::vector<std::wstring>{
                                     L"-1 Button &Select the font file",
                                     L"-1 Static F&ont File:",
                                     L"233 Edit ",
                                     L"237 Button B&rowse...",
                                     L"-1 Button &Describe the font",
                                     L"-1 Static &Name:",
                                     L"232 Edit ",
                                     L"270 Button Is &Bold",
                                     L"271 Button Is &Italic",
                                     L"273 Button Restart the service to apply changes.",
                                     L"1 Button OK",
                                     L"2 Button Cancel",
                                 }));
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

} // namespace
