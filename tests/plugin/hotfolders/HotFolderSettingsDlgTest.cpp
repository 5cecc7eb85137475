#include "hotfolders/HotFolderDialogTest.h"

#include "tmgmt/hotfolders/HotFolderSettingsDlg.h"

namespace
{

using TMgmt::HotFolderSettingsDlg;

constexpr wchar_t caption[] = L"Settings";
constexpr int baseUrl = 234;
constexpr int browse = 237;

class HotFolderSettingsDlgTest : public HotFolderDialogTest
{
};

TEST_F(HotFolderSettingsDlgTest, hasTheseControlsAndTheBaseUrlInItsField)
{
    HotFolderSettingsDlg dialog(L"http://host/?a=1&b=2");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                              L"-1 Static Base &URL:",
                                                                              L"234 Edit http://host/?a=1&b=2",
                                                                              L"237 Button &Browse",
                                                                              L"1 Button OK",
                                                                              L"2 Button Cancel",
                                                                          }));
                       EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (Ids{234, 237, IDOK, IDCANCEL}));
                       EXPECT_EQ(window.focus(), baseUrl);
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(HotFolderSettingsDlgTest, takesAnyTextOnOk)
{
    for (const wchar_t* text : {L"http://other/", L"", L"no URL at all"})
    {
        HotFolderSettingsDlg dialog(L"http://host/");
        robot().dialog(caption,
                       [text](ModalWindow& window)
                       {
                           window.type(baseUrl, text);
                           window.press(IDOK);
                       });
        EXPECT_EQ(dialog.show(frame()), IDOK);
        EXPECT_EQ(dialog.baseUrl, text);
    }
}

TEST_F(HotFolderSettingsDlgTest, keepsTheBaseUrlOnCancel)
{
    HotFolderSettingsDlg dialog(L"http://host/");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.type(baseUrl, L"http://other/");
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    EXPECT_EQ(dialog.baseUrl, L"http://host/");
}

TEST_F(HotFolderSettingsDlgTest, writesAChosenPathAsItIsAndNotAsAUrl)
{
    const std::wstring path = makeFolder(L"with blank");
    const FolderChooserSpy spy;
    HotFolderSettingsDlg dialog(L"http://host/");
    HWND owner = nullptr;
    robot().dialog(caption,
                   [&](ModalWindow& window)
                   {
                       owner = window.handle();
                       window.press(browse);
                   });
    chooseFolder(path);
    robot().dialog(caption,
                   [&](ModalWindow& window)
                   {
                       EXPECT_EQ(window.text(baseUrl), path);
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.baseUrl, path);
    ASSERT_EQ(spy.requests().size(), 1U);
    EXPECT_EQ(spy.requests()[0].title, L"Select a path");
    EXPECT_EQ(spy.requests()[0].flags, chooserFlags);
    EXPECT_EQ(spy.requests()[0].owner, owner);
}

TEST_F(HotFolderSettingsDlgTest, keepsItsFieldWhenTheChooserIsCancelled)
{
    HotFolderSettingsDlg dialog(L"http://host/");
    robot().dialog(caption, [](ModalWindow& window) { window.press(browse); });
    cancelFolder();
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(window.text(baseUrl), L"http://host/");
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

} // namespace
