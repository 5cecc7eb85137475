#pragma once

#include "hotfolders/HotFolderDialogTest.h"

#include "tmgmt/hotfolders/EditHotFolderDlg.h"

#include <fstream>

// A test of the hot folder editor, whose caption is empty.
class EditHotFolderDlgTestBase : public HotFolderDialogTest
{
  protected:
    using HotFolder = HotFolders::HotFolder;
    using EditHotFolderDlg = TMgmt::EditHotFolderDlg;

    static constexpr wchar_t caption[] = L"";
    static constexpr int input = 232;
    static constexpr int pattern = 233;
    static constexpr int stylesheet = 234;
    static constexpr int pageIndex = 235;
    static constexpr int output = 237;
    static constexpr int browseStylesheet = 238;
    static constexpr int browseInput = 242;
    static constexpr int monitoring = 243;
    static constexpr int editOnSuccess = 246;
    static constexpr int editOnFailure = 247;
    static constexpr int browseOutput = 248;
    static constexpr int format = 249;
    static constexpr int onSuccess = 261;
    static constexpr int onFailure = 262;
    static constexpr int restart = 273;
    static constexpr int applyStylesheet = 286;
    static constexpr int settings = 287;

    // One that may be stored: its folders exist.
    HotFolder validFolder() const
    {
        HotFolder folder;
        folder.setFolder(makeFolder(L"in"));
        folder.setOutputFolder(makeFolder(L"out"));
        return folder;
    }

    std::wstring makeStylesheet(const std::wstring& name) const
    {
        const std::wstring path = pathOf(name);
        std::ofstream(std::filesystem::path(path)) << "<xsl/>";
        return path;
    }

    static HotFolder folderWithFormat(int value)
    {
        HotFolder folder;
        folder.setOutputFormat(static_cast<Tessaro::OutputFormat>(value));
        return folder;
    }

    static int selectedFormat(const ModalWindow& window)
    {
        return static_cast<int>(SendMessageW(window.control(format), CB_GETCURSEL, 0, 0));
    }

    void inDialog(const std::function<void(ModalWindow&)>& use) { robot().dialog(caption, use); }

    // Opens the dialog, looks at it and cancels it.
    void lookAt(const HotFolder& folder, const std::function<void(ModalWindow&)>& look, bool restartService = false)
    {
        EditHotFolderDlg dialog(folder, restartService);
        inDialog(
            [&](ModalWindow& window)
            {
                look(window);
                window.press(IDCANCEL);
            });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    }

    // Opens the dialog, uses it, presses OK and returns what it stores.
    HotFolder storedAfter(const HotFolder& folder, const std::function<void(ModalWindow&)>& use)
    {
        EditHotFolderDlg dialog(folder);
        inDialog(
            [&](ModalWindow& window)
            {
                use(window);
                window.press(IDOK);
            });
        EXPECT_EQ(dialog.show(frame()), IDOK);
        return dialog.hotFolder;
    }
};
