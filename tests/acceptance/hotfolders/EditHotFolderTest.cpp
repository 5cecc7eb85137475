#include "hotfolders/HotFoldersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class EditHotFolder : public HotFoldersTest
{
  protected:
    void SetUp() override
    {
        HotFoldersTest::SetUp();
        storeAll({L"Invoices"});
    }

    // The editor comes up, the pattern is typed, the restart box set, and the button pressed.
    void edit(const std::wstring& pattern, bool restart, int button)
    {
        editor(
            [=](ModalWindow& dialog)
            {
                dialog.type(HotFolderEditor::pattern, pattern);
                dialog.setChecked(HotFolderEditor::restart, restart);
                dialog.press(button);
            });
    }

    static std::wstring storedPattern() { return stored().at(0).getFileMatchPattern().str(); }
};

// Proves: HotFolderItem on a double-click.
TEST_F(EditHotFolder, showsAndStoresEveryField)
{
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(folder(L"Invoices"), dialog.text(HotFolderEditor::input));
            EXPECT_EQ(folder(L"Invoices out"), dialog.text(HotFolderEditor::output));
            EXPECT_EQ(L"*.*", dialog.text(HotFolderEditor::pattern));
            dialog.type(HotFolderEditor::input, folder(L"Bills"));
            dialog.type(HotFolderEditor::output, folder(L"Bills out"));
            dialog.type(HotFolderEditor::pattern, L"*.fo");
            dialog.setChecked(HotFolderEditor::monitoring, false);
            dialog.press(IDOK);
        });
    view().doubleClick(L"Invoices");
    ASSERT_EQ(1u, stored().size());
    const HotFolders::HotFolder edited = stored().front();
    EXPECT_EQ(Core::String(folder(L"Bills")), edited.getFolder());
    EXPECT_EQ(Core::String(folder(L"Bills out")), edited.getOutputFolder());
    EXPECT_EQ(Core::String(L"*.fo"), edited.getFileMatchPattern());
    EXPECT_FALSE(edited.isMonitoringEnabled());
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Bills", folder(L"Bills"), L"*.fo", L"No")));
}

TEST_F(EditHotFolder, opensByItsCommandToo)
{
    openNode();
    edit(L"*.xml", false, IDOK);
    view().runCommand(L"Invoices", properties);
    EXPECT_EQ(L"*.xml", storedPattern());
}

TEST_F(EditHotFolder, keepsActionsEnteredInTheNestedDialogs)
{
    openNode();
    editor([](ModalWindow& dialog) { dialog.press(HotFolderEditor::editOnSuccess); });
    robot.dialog(
        L"Actions", [](ModalWindow& dialog) { dialog.press(258); }, Owner::dialog);
    robot.dialog(
        L"Edit Action",
        [](ModalWindow& dialog)
        {
            dialog.setChecked(265, true);
            dialog.type(233, L"http://localhost/done?file={InputFile}");
            dialog.press(IDOK);
        },
        Owner::dialog);
    robot.dialog(
        L"Actions", [](ModalWindow& dialog) { dialog.press(IDOK); }, Owner::dialog);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"Call http://localhost/done?file={InputFile}", dialog.text(HotFolderEditor::onSuccess));
            dialog.press(IDOK);
        });
    view().doubleClick(L"Invoices");
    const HotFolders::ActionList actions = stored().at(0).getOnSuccessActionList();
    ASSERT_EQ(1u, actions.size());
    EXPECT_EQ(HotFolders::ActionType::CallWebService, actions.front().getType());
    EXPECT_EQ(Core::String(L"http://localhost/done?file={InputFile}"), actions.front().getHttpUrl());
}

TEST_F(EditHotFolder, cancelledChangesNothing)
{
    openNode();
    edit(L"*.xml", true, IDCANCEL);
    view().doubleClick(L"Invoices");
    EXPECT_EQ(L"*.*", storedPattern());
    EXPECT_EQ(L"*.*", view().cell(L"Invoices", L"Pattern"));
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference());
}

TEST_F(EditHotFolder, showsTheRestartPreference)
{
    for (const bool preference : {true, false})
    {
        Registry::preferRestart(preference);
        openNode();
        editor(
            [=](ModalWindow& dialog)
            {
                EXPECT_EQ(preference, dialog.checked(HotFolderEditor::restart));
                dialog.press(IDCANCEL);
            });
        view().doubleClick(L"Invoices");
        close();
    }
}

TEST_F(EditHotFolder, withTheBoxClearStoresThatAndLeavesTheServiceAlone)
{
    Registry::preferRestart(true);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openNode();
    edit(L"*.xml", false, IDOK);
    view().doubleClick(L"Invoices");
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference());
    EXPECT_EQ(before, Service::processId());
}

TEST_F(EditHotFolder, withTheBoxTickedStoresThatAndRestartsTheService)
{
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openNode();
    edit(L"*.xml", true, IDOK);
    view().doubleClick(L"Invoices");
    EXPECT_EQ((Registry::Value{REG_SZ, L"true"}), Registry::restartPreference());
    EXPECT_NE(before, Service::processId());
    EXPECT_EQ(static_cast<DWORD>(SERVICE_RUNNING), Service::state());
}

// Proves: the row of a hot folder shows what was entered even when it cannot be stored.
TEST_F(EditHotFolder, thatTheLibraryRefusesStaysInTheRowAndRestartsNothing)
{
    HotFolders::HotFolder other = hotFolder(L"Invoices");
    other.setFileMatchPattern(L"*.xml");
    store(other);
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    openNode();
    edit(L"*.xml", true, IDOK);
    error(L"Another hot folder already watches \"" + folder(L"Invoices") + L"\" for \"*.xml\".");
    view().view().activateRow(0);
    EXPECT_EQ(L"*.*", storedPattern());
    EXPECT_EQ(L"*.xml", view().rows().at(0).at(2)) << "the row keeps what was entered";
    EXPECT_EQ((Registry::Value{REG_SZ, L"false"}), Registry::restartPreference());
    EXPECT_EQ(before, Service::processId());
    view().select(L"Users");
    view().select(node);
    EXPECT_EQ(L"*.*", view().rows().at(0).at(2)) << "until the list is read anew";
}

// Proves: HotFolderItem on a change that another view reports.
TEST_F(EditHotFolder, tellsEveryView)
{
    openNode(2);
    recorder.forgetCalls();
    edit(L"*.xml", false, IDOK);
    view(0).doubleClick(L"Invoices");
    EXPECT_EQ(1u, recorder.calls(L"IConsole::UpdateAllViews").size());
    EXPECT_EQ(L"*.xml", view(0).cell(L"Invoices", L"Pattern"));
    EXPECT_EQ(L"*.xml", view(1).cell(L"Invoices", L"Pattern"));
}

TEST_F(EditHotFolder, ofOneThatAnotherConsoleRemovedSaysSo)
{
    openNode();
    HotFolders::HotFolder gone = stored().at(0);
    HotFolders::HotFolderCollection().removeFolder(gone);
    edit(L"*.xml", false, IDOK);
    error(L"The hot folder \"" + folder(L"Invoices") +
          L"\" has been removed by another program. Please refresh the list.");
    view().doubleClick(L"Invoices");
    EXPECT_TRUE(stored().empty());
}

TEST_F(EditHotFolder, ofOneThatAnotherConsoleChangedStoresTheLastValues)
{
    openNode();
    HotFolders::HotFolder changed = stored().at(0);
    changed.setFileMatchPattern(L"*.txt");
    HotFolders::HotFolderCollection().updateFolder(changed);
    edit(L"*.xml", false, IDOK);
    view().doubleClick(L"Invoices");
    ASSERT_EQ(1u, stored().size());
    EXPECT_EQ(L"*.xml", storedPattern());
}

} // namespace
} // namespace Acceptance
