#pragma once

#include "DialogTestBase.h"

#include "dialogContents.h"
#include "hotfolders/FolderChooserSpy.h"
#include "kit/FolderDialog.h"
#include "kit/ModalWindow.h"
#include "kit/windows.h"

#include <filesystem>

// A test of a hot folder dialog, with a folder of its own for the folders that dialogs choose.
class HotFolderDialogTest : public DialogTestBase
{
  protected:
    using ModalWindow = Acceptance::ModalWindow;
    using FolderDialog = Acceptance::FolderDialog;
    using FolderChooserSpy = Acceptance::FolderChooserSpy;
    using Ids = std::vector<int>;

    // BIF_STATUSTEXT, BIF_NEWDIALOGSTYLE and BIF_UAHINT.
    static constexpr UINT chooserFlags = 0x4 | 0x40 | 0x100;

    void SetUp() override
    {
        std::filesystem::remove_all(m_root);
        std::filesystem::create_directory(m_root);
    }
    void TearDown() override
    {
        DialogTestBase::TearDown();
        std::filesystem::remove_all(m_root);
    }

    std::wstring makeFolder(const std::wstring& name) const
    {
        std::filesystem::create_directory(m_root / name);
        return m_root / name;
    }
    std::wstring pathOf(const std::wstring& name) const { return m_root / name; }

    // The next window is the system's dialog for a folder, opened by the dialog in front.
    void chooseFolder(const std::wstring& path)
    {
        robot().dialog(
            FolderDialog::caption, [path](ModalWindow& window) { FolderDialog(window).choose(path); },
            Acceptance::Owner::dialog);
    }
    void cancelFolder()
    {
        robot().dialog(
            FolderDialog::caption, [](ModalWindow& window) { window.press(IDCANCEL); }, Acceptance::Owner::dialog);
    }

  private:
    // Not below the user's folders, which the system's dialog shows by other ways.
    const std::filesystem::path m_root = L"C:\\HotFolderDialogTest";
};
