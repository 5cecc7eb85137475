#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/EditBoolPropertyDlg.h"

namespace
{

using Acceptance::ModalWindow;
using TMgmt::EditBoolPropertyDlg;

constexpr wchar_t caption[] = L"Edit Property";

class EditBoolPropertyDlgTest : public DialogTestBase
{
};

TEST_F(EditBoolPropertyDlgTest, hasTheseControls)
{
    EditBoolPropertyDlg dialog(L"Name", true, L"Description", true);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                                 (std::vector<std::wstring>{
                                     L"-1 Static Property &Name:",
                                     L"202 Edit Name",
                                     L"-1 Static &Value:",
                                     L"268 Button True",
                                     L"269 Button False",
                                     L"-1 Static &Description:",
                                     L"204 Edit Description",
                                     L"273 Button Restart the service to apply changes.",
                                     L"206 Button Re&set to default",
                                     L"1 Button OK",
                                     L"2 Button Cancel",
                                 }));
                       window.press(IDCANCEL);
                   });
    dialog.show(frame());
}

TEST_F(EditBoolPropertyDlgTest, opensWithTheFocusOnOkAndTheValueChecked)
{
    for (const bool value : {true, false})
    {
        EditBoolPropertyDlg dialog(L"Name", value, L"Description", !value);
        robot().dialog(caption,
                       [value](ModalWindow& window)
                       {
                           EXPECT_EQ(window.focus(), IDOK);
                           EXPECT_EQ(window.text(IDC_PROPERTY_NAME), L"Name");
                           EXPECT_EQ(window.text(IDC_PROPERTY_DESCRIPTION), L"Description");
                           EXPECT_EQ(window.text(268), L"True");
                           EXPECT_EQ(window.text(269), L"False");
                           EXPECT_EQ(window.checked(268), value);
                           EXPECT_EQ(window.checked(269), !value);
                           EXPECT_EQ(window.checked(IDC_RESTART_SERVICE), !value);
                           window.press(IDCANCEL);
                       });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    }
}

TEST_F(EditBoolPropertyDlgTest, asksTheButtonTrueAlone)
{
    EditBoolPropertyDlg dialog(L"Name", true, L"Description", true);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       // Both buttons are off: what is not true is false.
                       CheckDlgButton(window.handle(), 268, BST_UNCHECKED);
                       CheckDlgButton(window.handle(), 269, BST_UNCHECKED);
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_FALSE(dialog.value);
}

TEST_F(EditBoolPropertyDlgTest, takesTheOtherValueAndTheCheckBoxOnOk)
{
    EditBoolPropertyDlg dialog(L"Name", false, L"Description", true);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.setChecked(268, true);
                       window.setChecked(IDC_RESTART_SERVICE, false);
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_TRUE(dialog.value);
    EXPECT_FALSE(dialog.restart);
}

TEST_F(EditBoolPropertyDlgTest, resets)
{
    EditBoolPropertyDlg dialog(L"Name", false, L"Description", true);
    robot().dialog(caption, [](ModalWindow& window) { window.press(IDC_PROPERTY_RESET); });
    EXPECT_EQ(dialog.show(frame()), 206);
    EXPECT_TRUE(dialog.restart);
}

} // namespace
