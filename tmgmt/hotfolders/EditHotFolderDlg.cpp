#include "tmgmt/hotfolders/EditHotFolderDlg.h"

#include "brimlow/system/Exception.h"
#include "tmgmt/hotfolders/EditActionsDlg.h"
#include "tmgmt/hotfolders/HotFolderSettingsDlg.h"
#include "tmgmt/hotfolders/rules/OutputFormats.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/FilePicker.h"
#include "tmgmt/ui/FolderPicker.h"
#include "tmgmt/ui/dropDownList.h"
#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{
namespace
{

// Shows the editor of a list of actions; nothing when it was cancelled.
std::optional<HotFolders::ActionList> editActions(const HotFolders::ActionList& actions)
{
    EditActionsDlg editor(actions);
    if (editor.show(GetActiveWindow()) != IDOK)
    {
        return std::nullopt;
    }
    return std::move(editor.actions);
}

[[noreturn]] void throwNoFormat()
{
    Core::UnreacheableCodeException exception;
    // The place as the error log has always named it.
    exception.initCodeLocation(L"EditHotFolderDlg", 335);
    exception.logError();
    throw exception;
}

} // namespace

EditHotFolderDlg::EditHotFolderDlg(HotFolders::HotFolder hotFolder_, bool restart_)
    : Dialog(IDD_HOT_FOLDER), hotFolder(std::move(hotFolder_)), restart(restart_)
{
}

bool EditHotFolderDlg::onInit()
{
    fillFormats();
    setText(IDC_HOT_FOLDER_INPUT, hotFolder.getFolder().str());
    setText(IDC_HOT_FOLDER_OUTPUT, hotFolder.getOutputFolder().str());
    setText(IDC_HOT_FOLDER_PATTERN, hotFolder.getFileMatchPattern().str());
    setChecked(IDC_RESTART_SERVICE, restart);
    setChecked(IDC_HOT_FOLDER_MONITORING, hotFolder.isMonitoringEnabled());
    // Kept as is: without a stylesheet its field shows the base URL.
    const bool stylesheet = hotFolder.applyFolderXslTemplate();
    setText(IDC_HOT_FOLDER_STYLESHEET,
            stylesheet ? hotFolder.getFolderXslTemplate().str() : hotFolder.getBaseUrl().str());
    setChecked(IDC_HOT_FOLDER_APPLY_STYLESHEET, stylesheet);
    enableStylesheet(stylesheet);
    EnableWindow(item(IDC_HOT_FOLDER_PAGE_INDEX), storedFormatHasPageIndex(hotFolder.getOutputFormat()));
    setText(IDC_HOT_FOLDER_PAGE_INDEX, std::to_wstring(hotFolder.getPageIndex()));
    setText(IDC_HOT_FOLDER_ON_SUCCESS, hotFolder.getOnSuccessActionList().getDescription().str());
    setText(IDC_HOT_FOLDER_ON_FAILURE, hotFolder.getOnFailureActionList().getDescription().str());
    return true;
}

void EditHotFolderDlg::fillFormats() noexcept
{
    const HWND list = item(IDC_HOT_FOLDER_FORMAT);
    for (const OutputFormatEntry& entry : outputFormats)
    {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.name));
    }
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(indexOfFormat(hotFolder.getOutputFormat())), 0);
    sizeOpenList(list);
}

void EditHotFolderDlg::enableStylesheet(bool enabled) noexcept
{
    EnableWindow(item(IDC_HOT_FOLDER_STYLESHEET), enabled);
    EnableWindow(item(IDC_HOT_FOLDER_BROWSE_STYLESHEET), enabled);
}

void EditHotFolderDlg::onCommand(int control, int notification)
{
    switch (control)
    {
    case IDC_HOT_FOLDER_BROWSE_INPUT:
        browseInput();
        break;
    case IDC_HOT_FOLDER_BROWSE_OUTPUT:
        browseOutput();
        break;
    case IDC_HOT_FOLDER_BROWSE_STYLESHEET:
        browseStylesheet();
        break;
    case IDC_HOT_FOLDER_APPLY_STYLESHEET:
        enableStylesheet(isChecked(IDC_HOT_FOLDER_APPLY_STYLESHEET));
        break;
    case IDC_HOT_FOLDER_FORMAT:
        if (notification == CBN_SELCHANGE)
        {
            EnableWindow(item(IDC_HOT_FOLDER_PAGE_INDEX), listIndexHasPageIndex(selectedFormat()));
        }
        break;
    case IDC_HOT_FOLDER_EDIT_ON_SUCCESS:
        editOnSuccess();
        break;
    case IDC_HOT_FOLDER_EDIT_ON_FAILURE:
        editOnFailure();
        break;
    case IDC_HOT_FOLDER_SETTINGS:
        editSettings();
        break;
    default:
        Dialog::onCommand(control, notification);
    }
}

void EditHotFolderDlg::browseInput()
{
    if (const auto path = FolderPicker{L"Select a folder to monitor"}.pick(window()))
    {
        hotFolder.setFolder(*path);
        setText(IDC_HOT_FOLDER_INPUT, hotFolder.getFolder().str());
    }
}

void EditHotFolderDlg::browseOutput()
{
    if (const auto path = FolderPicker{L"Select the output folder"}.pick(window()))
    {
        hotFolder.setOutputFolder(*path);
        setText(IDC_HOT_FOLDER_OUTPUT, hotFolder.getOutputFolder().str());
    }
}

void EditHotFolderDlg::browseStylesheet()
{
    const FilePicker picker{
        .filters = {{L"Stylesheet Files (*.xsl,*.xslt)", L"*.xsl;*.xslt"}, {L"All Files (*.*)", L"*.*"}},
        .flags = 0,
        .capacity = 2048,
    };
    if (const auto file = picker.pick(window(), hotFolder.getFolderXslTemplate().str()))
    {
        hotFolder.setFolderXslTemplate(*file);
        setText(IDC_HOT_FOLDER_STYLESHEET, hotFolder.getFolderXslTemplate().str());
    }
}

void EditHotFolderDlg::editOnSuccess()
{
    if (const auto actions = editActions(hotFolder.getOnSuccessActionList()))
    {
        hotFolder.setOnSuccessActionList(*actions);
        setText(IDC_HOT_FOLDER_ON_SUCCESS, hotFolder.getOnSuccessActionList().getDescription().str());
    }
}

void EditHotFolderDlg::editOnFailure()
{
    if (const auto actions = editActions(hotFolder.getOnFailureActionList()))
    {
        hotFolder.setOnFailureActionList(*actions);
        setText(IDC_HOT_FOLDER_ON_FAILURE, hotFolder.getOnFailureActionList().getDescription().str());
    }
}

void EditHotFolderDlg::editSettings()
{
    HotFolderSettingsDlg settings(hotFolder.getBaseUrl().str());
    if (settings.show(GetActiveWindow()) == IDOK)
    {
        hotFolder.setBaseUrl(settings.baseUrl);
    }
}

int EditHotFolderDlg::selectedFormat() const noexcept
{
    return static_cast<int>(SendMessageW(item(IDC_HOT_FOLDER_FORMAT), CB_GETCURSEL, 0, 0));
}

void EditHotFolderDlg::onOk()
{
    store();
    Core::String message;
    if (!hotFolder.validate(true, message))
    {
        showMessage(window(), message.c_str(), L"Validation Failed", MB_OK | MB_ICONEXCLAMATION);
        return;
    }
    end(IDOK);
}

void EditHotFolderDlg::store()
{
    hotFolder.setFolder(text(IDC_HOT_FOLDER_INPUT));
    hotFolder.setOutputFolder(text(IDC_HOT_FOLDER_OUTPUT));
    hotFolder.setFileMatchPattern(text(IDC_HOT_FOLDER_PATTERN));
    // Kept as is: the base URL comes from the field of the stylesheet, whatever was entered under "Settings".
    hotFolder.setBaseUrl(text(IDC_HOT_FOLDER_STYLESHEET));
    restart = isChecked(IDC_RESTART_SERVICE);
    hotFolder.setEnableMonitoring(isChecked(IDC_HOT_FOLDER_MONITORING));
    hotFolder.setApplyFolderXslTemplate(isChecked(IDC_HOT_FOLDER_APPLY_STYLESHEET));
    hotFolder.setFolderXslTemplate(text(IDC_HOT_FOLDER_STYLESHEET));
    const int index = selectedFormat();
    const auto format = formatAt(index);
    if (!format)
    {
        throwNoFormat();
    }
    hotFolder.setOutputFormat(*format);
    // Kept as is: the page index of a JPEG or GIF can be edited and is stored as 0.
    hotFolder.setPageIndex(pageIndexToStore(index, text(IDC_HOT_FOLDER_PAGE_INDEX)));
}

} // namespace TMgmt
