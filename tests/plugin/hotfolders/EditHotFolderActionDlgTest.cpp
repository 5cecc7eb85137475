#include "hotfolders/HotFolderDialogTest.h"

#include "tmgmt/hotfolders/EditHotFolderActionDlg.h"

#include <limits>

namespace
{

using HotFolders::Action;
using HotFolders::ActionType;
using TMgmt::EditHotFolderActionDlg;

constexpr wchar_t caption[] = L"Edit Action";
constexpr int folder = 232;
constexpr int url = 233;
constexpr int browse = 246;
constexpr int deleteFile = 263;
constexpr int moveFile = 264;
constexpr int callService = 265;

class EditHotFolderActionDlgTest : public HotFolderDialogTest
{
  protected:
    static Action actionOf(int type)
    {
        Action action;
        action.setType(static_cast<ActionType>(type));
        action.setDestinationPath(L"C:\\Done");
        action.setHttpUrl(L"http://host/done");
        return action;
    }

    static Ids checkedOf(const ModalWindow& window)
    {
        Ids checked;
        for (const int button : {deleteFile, moveFile, callService})
        {
            if (window.checked(button))
            {
                checked.push_back(button);
            }
        }
        return checked;
    }

    // Opens the dialog on the action, uses it so, and returns the action afterwards.
    Action after(const Action& action, INT_PTR result, const std::function<void(ModalWindow&)>& use)
    {
        EditHotFolderActionDlg dialog(action);
        robot().dialog(caption,
                       [use, result](ModalWindow& window)
                       {
                           use(window);
                           window.press(static_cast<int>(result));
                       });
        EXPECT_EQ(dialog.show(frame()), result);
        return dialog.action;
    }
};

TEST_F(EditHotFolderActionDlgTest, hasTheseControls)
{
    after(
        Action(), IDCANCEL,
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                      (std::vector<std::wstring>{
                          L"263 Button &Delete input file",
                          L"264 Button &Move input file to the specified folder",
                          L"265 Button Call Web Service (HTTP GET)",
                          L"-1 Static &Folder:",
                          L"232 Edit ",
                          L"246 Button &Browse",
                          L"-1 Static Url:",
                          L"233 Edit ",
                          L"-1 Static Note:\n"
                          L"When making a HTTP request you can use the following placeholders:\n"
                          L"    {InputFile} - Input file's full path\n"
                          L"    {OutputFile} - Output file's full path",
                          L"1 Button OK",
                          L"2 Button Cancel",
                      }));
            EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (Ids{deleteFile, folder, browse, url, IDOK, IDCANCEL}));
        });
}

TEST_F(EditHotFolderActionDlgTest, showsTheKindAndTheFieldOfThatKindOnly)
{
    struct Case
    {
        int type;
        Ids checked;
        const wchar_t* folder;
        const wchar_t* url;
    };
    const Case cases[] = {
        {std::numeric_limits<int>::min(), {}, L"", L""},
        {-1, {}, L"", L""},
        {0, {deleteFile}, L"", L""},
        {1, {deleteFile}, L"", L""},
        {2, {moveFile}, L"C:\\Done", L""},
        {3, {callService}, L"", L"http://host/done"},
        {4, {}, L"", L""},
        {std::numeric_limits<int>::max(), {}, L"", L""},
    };
    for (const Case& expected : cases)
    {
        after(actionOf(expected.type), IDCANCEL,
              [&](ModalWindow& window)
              {
                  EXPECT_EQ(checkedOf(window), expected.checked) << expected.type;
                  EXPECT_EQ(window.text(folder), expected.folder) << expected.type;
                  EXPECT_EQ(window.text(url), expected.url) << expected.type;
              });
    }
}

// On Windows a radio button takes the focus, as it does when the dialog opens or comes back, like a click on it unless
// told not to. Wine's does not.
TEST_F(EditHotFolderActionDlgTest, tellsItsRadioButtonsNotToTakeTheFocusAsAClick)
{
    Ids told;
    Acceptance::ImportSpy<"SendMessageW", decltype(SendMessageW)> spy(
        [&](HWND window, UINT message, WPARAM wparam, LPARAM lparam) -> LRESULT
        {
            if (message == BM_SETDONTCLICK && wparam == TRUE)
            {
                told.push_back(GetDlgCtrlID(window));
            }
            return spy.callThrough(window, message, wparam, lparam);
        },
        nullptr);
    after(actionOf(4), IDCANCEL, [](ModalWindow& window) { EXPECT_EQ(window.focus(), deleteFile); });
    EXPECT_EQ(told, (Ids{deleteFile, moveFile, callService}));
}

TEST_F(EditHotFolderActionDlgTest, leavesAllControlsUsableWhateverIsChosen)
{
    after(Action(), IDCANCEL,
          [](ModalWindow& window)
          {
              for (const int button : {deleteFile, moveFile, callService})
              {
                  window.setChecked(button, true);
                  EXPECT_EQ(checkedOf(window), Ids{button});
                  for (const int control : {folder, browse, url})
                  {
                      EXPECT_TRUE(window.enabled(control)) << control << " for " << button;
                  }
              }
          });
}

TEST_F(EditHotFolderActionDlgTest, storesTheChosenKindWithItsOwnFieldAndKeepsTheOtherFields)
{
    struct Case
    {
        int button;
        ActionType type;
        const wchar_t* path;
        const wchar_t* url;
    };
    const Case cases[] = {
        {deleteFile, ActionType::DeleteInputFile, L"C:\\Done", L"http://host/done"},
        {moveFile, ActionType::MoveInputFile, L"D:\\new", L"http://host/done"},
        {callService, ActionType::CallWebService, L"C:\\Done", L"http://new/{InputFile}?o={OutputFile}"},
    };
    for (int type = 0; type <= 4; ++type)
    {
        for (const Case& expected : cases)
        {
            const Action stored = after(actionOf(type), IDOK,
                                        [&](ModalWindow& window)
                                        {
                                            window.setChecked(expected.button, true);
                                            window.type(folder, L"D:\\new");
                                            window.type(url, L"http://new/{InputFile}?o={OutputFile}");
                                        });
            EXPECT_EQ(stored.getType(), expected.type);
            EXPECT_EQ(stored.getDestinationPath(), expected.path);
            EXPECT_EQ(stored.getHttpUrl(), expected.url);
        }
    }
}

TEST_F(EditHotFolderActionDlgTest, acceptsAnEmptyFolderAndAnEmptyUrl)
{
    const Action moved = after(actionOf(2), IDOK, [](ModalWindow& window) { window.type(folder, L""); });
    EXPECT_EQ(moved.getType(), ActionType::MoveInputFile);
    EXPECT_EQ(moved.getDestinationPath(), L"");
    const Action called = after(actionOf(3), IDOK, [](ModalWindow& window) { window.type(url, L""); });
    EXPECT_EQ(called.getType(), ActionType::CallWebService);
    EXPECT_EQ(called.getHttpUrl(), L"");
}

TEST_F(EditHotFolderActionDlgTest, keepsTheFolderOfAMoveThatBecomesACall)
{
    const Action stored = after(actionOf(2), IDOK,
                                [](ModalWindow& window)
                                {
                                    window.setChecked(callService, true);
                                    window.type(url, L"http://new/");
                                });
    EXPECT_EQ(stored.getType(), ActionType::CallWebService);
    EXPECT_EQ(stored.getDestinationPath(), L"C:\\Done");
    EXPECT_EQ(stored.getHttpUrl(), L"http://new/");
}

TEST_F(EditHotFolderActionDlgTest, storesADefaultActionAsADeletion)
{
    const Action stored = after(Action(), IDOK, [](ModalWindow&) {});
    EXPECT_EQ(stored.getType(), ActionType::DeleteInputFile);
}

TEST_F(EditHotFolderActionDlgTest, storesADeletionWhenNothingIsChosen)
{
    for (const int type : {-1, 4})
    {
        const Action stored =
            after(actionOf(type), IDOK, [](ModalWindow& window) { EXPECT_EQ(checkedOf(window), Ids{}); });
        EXPECT_EQ(stored.getType(), ActionType::DeleteInputFile);
        EXPECT_EQ(stored.getDestinationPath(), L"C:\\Done");
        EXPECT_EQ(stored.getHttpUrl(), L"http://host/done");
    }
}

TEST_F(EditHotFolderActionDlgTest, changesNothingOnCancel)
{
    const Action before = actionOf(2);
    const Action stored = after(before, IDCANCEL,
                                [](ModalWindow& window)
                                {
                                    window.setChecked(callService, true);
                                    window.type(folder, L"D:\\new");
                                    window.type(url, L"http://new/");
                                });
    EXPECT_EQ(stored, before);
}

// Proves: the title is the one under which an input folder is chosen.
TEST_F(EditHotFolderActionDlgTest, writesAChosenFolderIntoItsFieldAndLeavesTheKindAlone)
{
    const std::wstring path = makeFolder(L"chosen");
    const FolderChooserSpy spy;
    HWND owner = nullptr;
    EditHotFolderActionDlg dialog(actionOf(1));
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
                       EXPECT_EQ(window.text(folder), path);
                       EXPECT_EQ(checkedOf(window), Ids{deleteFile});
                       window.setChecked(moveFile, true);
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.action.getDestinationPath(), path);
    ASSERT_EQ(spy.requests().size(), 1U);
    // The title of the chooser for the input folder.
    EXPECT_EQ(spy.requests()[0].title, L"Select a folder to monitor");
    EXPECT_EQ(spy.requests()[0].flags, chooserFlags);
    EXPECT_EQ(spy.requests()[0].owner, owner);
}

TEST_F(EditHotFolderActionDlgTest, keepsItsFieldWhenTheChooserIsCancelled)
{
    EditHotFolderActionDlg dialog(actionOf(2));
    robot().dialog(caption, [](ModalWindow& window) { window.press(browse); });
    cancelFolder();
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(window.text(folder), L"C:\\Done");
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

} // namespace
