#include "DialogTestBase.h"

#include "kit/FolderDialog.h"
#include "kit/ImportSpy.h"
#include "tmgmt/ui/FolderPicker.h"

#include <filesystem>

namespace
{

using Acceptance::FolderDialog;
using Acceptance::ImportSpy;
using Acceptance::ModalWindow;
using TMgmt::FolderPicker;

class FolderPickerTest : public DialogTestBase
{
  protected:
    using BrowseSpy = ImportSpy<"SHBrowseForFolderW", decltype(SHBrowseForFolderW)>;

    void SetUp() override
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }
    void TearDown() override
    {
        DialogTestBase::TearDown();
        std::filesystem::remove_all(m_folder);
    }

    // Not below the user's folders, which the tree shows by other ways.
    const std::filesystem::path m_folder = L"C:\\FolderPickerTest";
};

TEST_F(FolderPickerTest, returnsThePathOfTheChosenFolder)
{
    const std::wstring path = m_folder / L"Ein Ordner \u65E5\u672C";
    std::filesystem::create_directory(path);
    robot().dialog(FolderDialog::caption,
                   [&](ModalWindow& window)
                   {
                       EXPECT_EQ(FolderDialog(window).title(), L"Select something");
                       FolderDialog(window).choose(path);
                   });
    EXPECT_EQ(FolderPicker{L"Select something"}.pick(frame()), path);
}

// Wine has no items for such paths, so the system's part is played here.
TEST_F(FolderPickerTest, returnsAPathThatIsLongerThan260CharactersWhole)
{
    const std::wstring path = L"C:\\" + std::wstring(32000, L'a');
    BrowseSpy browse(
        [](LPBROWSEINFOW)
        {
            LPITEMIDLIST item = nullptr;
            SHGetSpecialFolderLocation(nullptr, CSIDL_DESKTOP, &item);
            return item;
        },
        nullptr);
    ImportSpy<"SHGetPathFromIDListEx", decltype(SHGetPathFromIDListEx)> asked(
        [&](PCIDLIST_ABSOLUTE, PWSTR buffer, DWORD size, GPFIDL_FLAGS flags) -> WINBOOL
        {
            EXPECT_EQ(flags, GPFIDL_DEFAULT);
            if (size <= path.size())
            {
                return FALSE;
            }
            path.copy(buffer, path.size());
            buffer[path.size()] = L'\0';
            return TRUE;
        },
        nullptr);
    EXPECT_EQ(FolderPicker{L""}.pick(frame()), path);
}

TEST_F(FolderPickerTest, returnsNothingWhenCancelled)
{
    robot().dialog(FolderDialog::caption, [](ModalWindow& window) { window.press(IDCANCEL); });
    EXPECT_EQ(FolderPicker{L""}.pick(frame()), std::nullopt);
}

TEST_F(FolderPickerTest, returnsNothingForWhatIsNoFolderOfTheFileSystem)
{
    robot().dialog(FolderDialog::caption, [](ModalWindow& window) { FolderDialog(window).chooseComputer(); });
    EXPECT_EQ(FolderPicker{L""}.pick(frame()), std::nullopt);
}

TEST_F(FolderPickerTest, asksForTheNewStyleWithAStatusTextAndAUsageHintUnlessToldOtherwise)
{
    std::vector<UINT> flags;
    BrowseSpy spy(
        [&](LPBROWSEINFOW request) -> LPITEMIDLIST
        {
            flags.push_back(request->ulFlags);
            return nullptr;
        },
        nullptr);
    FolderPicker{.title = L""}.pick(frame());
    FolderPicker{.title = L"", .flags = BIF_BROWSEFORCOMPUTER}.pick(frame());
    EXPECT_EQ(flags, (std::vector<UINT>{0x4 | 0x40 | 0x100, 0x1000}));
}

} // namespace
