#include "hotfolders/HotFoldersTest.h"

#include <gmock/gmock.h>

namespace Acceptance
{
namespace
{

using testing::ElementsAre;

class AddHotFolder : public HotFoldersTest
{
};

TEST_F(AddHotFolder, storesWhatWasEnteredAndShowsIt)
{
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(HotFolderEditor::input, folder(L"Invoices"));
            dialog.type(HotFolderEditor::pattern, L"*.xml");
            dialog.type(HotFolderEditor::output, folder(L"Printed"));
            dialog.setChecked(HotFolderEditor::monitoring, false);
            dialog.press(IDOK);
        });
    view().runNodeCommand(node, add);
    ASSERT_EQ(1u, stored().size());
    const HotFolders::HotFolder added = stored().front();
    EXPECT_EQ(Core::String(folder(L"Invoices")), added.getFolder());
    EXPECT_EQ(Core::String(L"*.xml"), added.getFileMatchPattern());
    EXPECT_EQ(Core::String(folder(L"Printed")), added.getOutputFolder());
    EXPECT_FALSE(added.isMonitoringEnabled());
    EXPECT_THAT(view().rows(), ElementsAre(ElementsAre(L"Invoices", folder(L"Invoices"), L"*.xml", L"No")));
}

TEST_F(AddHotFolder, startsFromTheDefaultsWithTheRestartBoxClear)
{
    Registry::preferRestart(true);
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"", dialog.text(HotFolderEditor::input));
            EXPECT_EQ(L"", dialog.text(HotFolderEditor::output));
            EXPECT_EQ(L"*.*", dialog.text(HotFolderEditor::pattern));
            EXPECT_TRUE(dialog.checked(HotFolderEditor::monitoring));
            EXPECT_EQ(L"PDF", dialog.text(HotFolderEditor::format));
            EXPECT_EQ(L"Do nothing", dialog.text(HotFolderEditor::onSuccess));
            EXPECT_FALSE(dialog.checked(HotFolderEditor::restart));
            dialog.press(IDCANCEL);
        });
    view().runNodeCommand(node, add);
}

TEST_F(AddHotFolder, neitherWritesThePreferenceNorRestartsTheService)
{
    Service::startOnFreePort();
    const DWORD before = Service::processId();
    Registry::preferRestart(true);
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(HotFolderEditor::input, folder(L"Invoices"));
            dialog.type(HotFolderEditor::output, folder(L"Printed"));
            dialog.press(IDOK);
        });
    view().runNodeCommand(node, add);
    EXPECT_THAT(storedNames(), ElementsAre(L"Invoices"));
    EXPECT_EQ((Registry::Value{REG_SZ, L"true"}), Registry::restartPreference());
    EXPECT_EQ(before, Service::processId());
}

TEST_F(AddHotFolder, cancelledStoresNothing)
{
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(HotFolderEditor::input, folder(L"Invoices"));
            dialog.type(HotFolderEditor::output, folder(L"Printed"));
            dialog.press(IDCANCEL);
        });
    view().runNodeCommand(node, add);
    EXPECT_TRUE(stored().empty());
    EXPECT_TRUE(view().rows().empty());
}

TEST_F(AddHotFolder, keepsTheEditorOpenOverWhatTheServerCannotUse)
{
    openNode();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    robot.message({.text = L"Please enter the input folder.",
                   .caption = failedCaption,
                   .icon = MB_ICONEXCLAMATION,
                   .owner = Owner::dialog});
    editor([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    view().runNodeCommand(node, add);
    EXPECT_TRUE(stored().empty());
}

TEST_F(AddHotFolder, ofTheSameFolderAndPatternIsRefusedByTheLibrary)
{
    storeAll({L"Invoices"});
    openNode();
    enter(folder(L"Invoices"), folder(L"Printed"));
    error(L"Another hot folder already watches \"" + folder(L"Invoices") + L"\" for \"*.*\".");
    view().runNodeCommand(node, add);
    EXPECT_THAT(storedNames(), ElementsAre(L"Invoices"));
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
}

TEST_F(AddHotFolder, selectsTheNodeBeforeTheListIsReadAnew)
{
    open();
    view().select(L"");
    recorder.forgetCalls();
    enter(folder(L"Invoices"), folder(L"Printed"));
    view().runNodeCommand(node, add);
    EXPECT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(node, view().selected());
    EXPECT_THAT(names(), ElementsAre(L"Invoices"));
}

TEST_F(AddHotFolder, isSeenInEveryView)
{
    openNode(2);
    enter(folder(L"Invoices"), folder(L"Printed"));
    view(0).runNodeCommand(node, add);
    EXPECT_THAT(names(0), ElementsAre(L"Invoices"));
    EXPECT_THAT(names(1), ElementsAre(L"Invoices"));
}

TEST_F(AddHotFolder, keepsPathsOf32000Characters)
{
    // The editor demands folders that exist, which such long ones do not here: the stored one is only listed.
    HotFolders::HotFolder deep = hotFolder(L"Deep");
    const std::wstring path = L"C:\\" + std::wstring(31'990, L'x');
    deep.setFolder(path);
    store(deep);
    openNode();
    EXPECT_EQ(path, view().rows().at(0).at(1));
}

} // namespace
} // namespace Acceptance
