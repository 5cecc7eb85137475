#include "tmgmt/hotfolders/HotFolderSettingsDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/FolderPicker.h"

namespace TMgmt
{

HotFolderSettingsDlg::HotFolderSettingsDlg(std::wstring baseUrl_)
    : Dialog(IDD_HOT_FOLDER_SETTINGS), baseUrl(std::move(baseUrl_))
{
}

bool HotFolderSettingsDlg::onInit()
{
    setText(IDC_BASE_URL, baseUrl);
    return true;
}

void HotFolderSettingsDlg::onCommand(int control, int notification)
{
    if (control != IDC_BASE_URL_BROWSE)
    {
        Dialog::onCommand(control, notification);
    }
    else if (const auto path = FolderPicker{L"Select a path"}.pick(window()))
    {
        // The path as it is, not as a URL.
        setText(IDC_BASE_URL, *path);
    }
}

void HotFolderSettingsDlg::onOk()
{
    baseUrl = text(IDC_BASE_URL);
    end(IDOK);
}

} // namespace TMgmt
