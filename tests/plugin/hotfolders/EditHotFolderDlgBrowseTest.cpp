#include "hotfolders/EditHotFolderDlgTestBase.h"

#include "FileChooserSpy.h"
#include "kit/FileDialog.h"

#include <array>

namespace
{

using Acceptance::FileChooserSpy;
using Acceptance::FileDialog;
using Acceptance::Owner;
using HotFolders::Action;
using HotFolders::ActionList;
using HotFolders::ActionType;

constexpr wchar_t actionsCaption[] = L"Actions";
constexpr wchar_t actionCaption[] = L"Edit Action";
constexpr wchar_t settingsCaption[] = L"Settings";

class EditHotFolderDlgBrowseTest : public EditHotFolderDlgTestBase
{
  protected:
    static HotFolder withStylesheet(const std::wstring& file)
    {
        HotFolder folder;
        folder.setFolderXslTemplate(file);
        folder.setApplyFolderXslTemplate(true);
        return folder;
    }

    static Action deletion()
    {
        Action action;
        action.setType(ActionType::DeleteInputFile);
        return action;
    }

    static Action moveTo(const wchar_t* path)
    {
        Action action;
        action.setType(ActionType::MoveInputFile);
        action.setDestinationPath(path);
        return action;
    }

    struct FolderField
    {
        int button;
        int field;
        int otherField;
    };

    std::wstring chosenFolder() const { return makeFolder(L"chosen"); }

    // Chooses chosenFolder() through that button, checks what the system was asked and what the fields show, cancels
    // the editor, and returns the hot folder that it has then.
    HotFolder choose(const FolderField& place, const wchar_t* title)
    {
        const FolderChooserSpy spy;
        EditHotFolderDlg dialog;
        HWND owner = nullptr;
        inDialog(
            [&](ModalWindow& window)
            {
                owner = window.handle();
                window.press(place.button);
            });
        chooseFolder(chosenFolder());
        inDialog(
            [&](ModalWindow& window)
            {
                EXPECT_EQ(window.text(place.field), chosenFolder());
                EXPECT_EQ(window.text(place.otherField), L"");
                window.press(IDCANCEL);
            });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
        EXPECT_EQ(spy.requests().size(), 1U);
        for (const auto& request : spy.requests())
        {
            EXPECT_EQ(request.title, title);
            EXPECT_EQ(request.flags, chooserFlags);
            EXPECT_EQ(request.owner, owner);
        }
        return dialog.hotFolder;
    }
};

TEST_F(EditHotFolderDlgBrowseTest, takesAChosenInputFolderAtOnce)
{
    const HotFolder chosen =
        choose({.button = browseInput, .field = input, .otherField = output}, L"Select a folder to monitor");
    EXPECT_EQ(chosen.getFolder(), chosenFolder());
}

TEST_F(EditHotFolderDlgBrowseTest, takesAChosenOutputFolderAtOnce)
{
    const HotFolder chosen =
        choose({.button = browseOutput, .field = output, .otherField = input}, L"Select the output folder");
    EXPECT_EQ(chosen.getOutputFolder(), chosenFolder());
}

TEST_F(EditHotFolderDlgBrowseTest, keepsBothFoldersWhenTheChooserIsCancelled)
{
    EditHotFolderDlg dialog(validFolder());
    inDialog([](ModalWindow& window) { window.press(browseInput); });
    cancelFolder();
    inDialog([](ModalWindow& window) { window.press(browseOutput); });
    cancelFolder();
    inDialog(
        [&](ModalWindow& window)
        {
            EXPECT_EQ(window.text(input), pathOf(L"in"));
            EXPECT_EQ(window.text(output), pathOf(L"out"));
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    EXPECT_EQ(dialog.hotFolder.getFolder(), pathOf(L"in"));
    EXPECT_EQ(dialog.hotFolder.getOutputFolder(), pathOf(L"out"));
}

TEST_F(EditHotFolderDlgBrowseTest, takesAChosenStylesheetAtOnce)
{
    const std::wstring former = makeStylesheet(L"former.xsl");
    const std::wstring chosen = makeStylesheet(L"chosen.xslt");
    const FileChooserSpy spy;
    EditHotFolderDlg dialog(withStylesheet(former));
    HWND owner = nullptr;
    inDialog(
        [&](ModalWindow& window)
        {
            owner = window.handle();
            // It asks for the file that it took last, not for what is typed.
            window.type(stylesheet, L"C:\\typed.xsl");
            window.press(browseStylesheet);
        });
    robot().dialog(
        FileDialog::caption, [&](ModalWindow& window) { FileDialog(window).choose(chosen); }, Owner::dialog);
    inDialog(
        [&](ModalWindow& window)
        {
            EXPECT_EQ(window.text(stylesheet), chosen);
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    EXPECT_EQ(dialog.hotFolder.getFolderXslTemplate(), chosen);
    ASSERT_EQ(spy.requests().size(), 1U);
    const FileChooserSpy::Request& request = spy.requests()[0];
    EXPECT_EQ(request.file, former);
    EXPECT_EQ(request.capacity, 2048U);
    EXPECT_EQ(request.flags, 0U);
    EXPECT_EQ(request.owner, owner);
    EXPECT_EQ(request.filter, L"Stylesheet Files (*.xsl,*.xslt)|*.xsl;*.xslt|All Files (*.*)|*.*|");
}

TEST_F(EditHotFolderDlgBrowseTest, keepsTheStylesheetWhenTheChooserIsCancelled)
{
    const std::wstring former = makeStylesheet(L"former.xsl");
    EditHotFolderDlg dialog(withStylesheet(former));
    inDialog([](ModalWindow& window) { window.press(browseStylesheet); });
    robot().dialog(
        FileDialog::caption, [](ModalWindow& window) { FileDialog(window).cancel(); }, Owner::dialog);
    inDialog(
        [&](ModalWindow& window)
        {
            EXPECT_EQ(window.text(stylesheet), former);
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    EXPECT_EQ(dialog.hotFolder.getFolderXslTemplate(), former);
}

TEST_F(EditHotFolderDlgBrowseTest, takesTheEditedActionsOfEachOutcomeAndDescribesThem)
{
    HotFolder folder;
    folder.setOnSuccessActionList({deletion()});
    folder.setOnFailureActionList({moveTo(L"C:\\Bad")});
    struct Case
    {
        int button;
        int label;
        int otherLabel;
        const wchar_t* first;
        const wchar_t* described;
        const wchar_t* otherDescribed;
        ActionList onSuccess;
        ActionList onFailure;
    };
    const Case cases[] = {
        {editOnSuccess, onSuccess, onFailure, L"Delete input file", L"Delete input file; Delete input file",
         L"Move input file to C:\\Bad", ActionList{deletion(), deletion()}, ActionList{moveTo(L"C:\\Bad")}},
        {editOnFailure, onFailure, onSuccess, L"Move input file to C:\\Bad",
         L"Move input file to C:\\Bad; Delete input file", L"Delete input file", ActionList{deletion()},
         ActionList{moveTo(L"C:\\Bad"), deletion()}},
    };
    for (const Case& expected : cases)
    {
        EditHotFolderDlg dialog(folder);
        inDialog([&](ModalWindow& window) { window.press(expected.button); });
        robot().dialog(
            actionsCaption,
            [&](ModalWindow& window)
            {
                std::array<wchar_t, 100> row{};
                SendMessageW(window.control(260), LB_GETTEXT, 0, reinterpret_cast<LPARAM>(row.data()));
                EXPECT_STREQ(row.data(), expected.first);
                window.press(258);
            },
            Owner::dialog);
        robot().dialog(
            actionCaption, [](ModalWindow& window) { window.press(IDOK); }, Owner::dialog);
        robot().dialog(
            actionsCaption, [](ModalWindow& window) { window.press(IDOK); }, Owner::dialog);
        inDialog(
            [&](ModalWindow& window)
            {
                EXPECT_EQ(window.text(expected.label), expected.described);
                EXPECT_EQ(window.text(expected.otherLabel), expected.otherDescribed);
                window.press(IDCANCEL);
            });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
        EXPECT_EQ(dialog.hotFolder.getOnSuccessActionList(), expected.onSuccess);
        EXPECT_EQ(dialog.hotFolder.getOnFailureActionList(), expected.onFailure);
    }
}

TEST_F(EditHotFolderDlgBrowseTest, keepsTheActionsWhenTheirListIsCancelled)
{
    HotFolder folder;
    folder.setOnSuccessActionList({deletion()});
    folder.setOnFailureActionList({moveTo(L"C:\\Bad")});
    for (const int button : {editOnSuccess, editOnFailure})
    {
        EditHotFolderDlg dialog(folder);
        inDialog([button](ModalWindow& window) { window.press(button); });
        robot().dialog(
            actionsCaption, [](ModalWindow& window) { window.press(258); }, Owner::dialog);
        robot().dialog(
            actionCaption, [](ModalWindow& window) { window.press(IDOK); }, Owner::dialog);
        robot().dialog(
            actionsCaption, [](ModalWindow& window) { window.press(IDCANCEL); }, Owner::dialog);
        inDialog(
            [](ModalWindow& window)
            {
                EXPECT_EQ(window.text(onSuccess), L"Delete input file");
                EXPECT_EQ(window.text(onFailure), L"Move input file to C:\\Bad");
                window.press(IDCANCEL);
            });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
        EXPECT_EQ(dialog.hotFolder.getOnSuccessActionList(), folder.getOnSuccessActionList());
        EXPECT_EQ(dialog.hotFolder.getOnFailureActionList(), folder.getOnFailureActionList());
    }
}

TEST_F(EditHotFolderDlgBrowseTest, takesTheBaseUrlOfTheSettings)
{
    HotFolder folder;
    folder.setBaseUrl(L"http://base/");
    for (const auto& [button, expected] : {std::pair(IDOK, L"http://other/"), std::pair(IDCANCEL, L"http://base/")})
    {
        EditHotFolderDlg dialog(folder);
        inDialog([](ModalWindow& window) { window.press(settings); });
        robot().dialog(
            settingsCaption,
            [button](ModalWindow& window)
            {
                EXPECT_EQ(window.text(234), L"http://base/");
                window.type(234, L"http://other/");
                window.press(button);
            },
            Owner::dialog);
        inDialog(
            [](ModalWindow& window)
            {
                // The settings leave the field alone.
                EXPECT_EQ(window.text(stylesheet), L"http://base/");
                window.press(IDCANCEL);
            });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
        EXPECT_EQ(dialog.hotFolder.getBaseUrl(), expected);
    }
}

// Proves: the base URL comes from the field of the stylesheet, whatever was entered under "Settings".
TEST_F(EditHotFolderDlgBrowseTest, losesTheBaseUrlOfTheSettingsOnOk)
{
    HotFolder folder = validFolder();
    folder.setBaseUrl(L"http://base/");
    EditHotFolderDlg dialog(folder);
    inDialog([](ModalWindow& window) { window.press(settings); });
    robot().dialog(
        settingsCaption,
        [](ModalWindow& window)
        {
            window.type(234, L"http://other/");
            window.press(IDOK);
        },
        Owner::dialog);
    inDialog([](ModalWindow& window) { window.press(IDOK); });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.hotFolder.getBaseUrl(), L"http://base/");
}

} // namespace
