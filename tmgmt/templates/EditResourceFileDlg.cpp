#include "tmgmt/templates/EditResourceFileDlg.h"

#include <commdlg.h>

#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"
#include "tmgmt/ui/FilePicker.h"

namespace TMgmt
{

EditResourceFileDlg::EditResourceFileDlg() noexcept : Dialog(IDD_ADD_RESOURCE_FILE) {}

bool EditResourceFileDlg::onInit()
{
    setText(IDC_RESOURCE_FILE_PATH, file.getResourceFilePath().str());
    return true;
}

void EditResourceFileDlg::onCommand(int control, int notification)
{
    if (control == IDC_RESOURCE_FILE_BROWSE)
    {
        browse();
        return;
    }
    Dialog::onCommand(control, notification);
}

void EditResourceFileDlg::browse()
{
    const FilePicker picker{
        // Kept as is: the pattern of the pictures has endings that its label does not name.
        .filters = {{L"Image files (*.bmp, *.png, *.gif, *.jpeg, *.tiff, *.svg)",
                     L"*.bmp;*.png;*.gif;*.jpg;*.jpeg;*.tif;*.tiff;*.svg"},
                    {L"Text files (*.txt)", L"*.txt"},
                    {L"All Files (*.*)", L"*.*"}},
        .flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST,
    };
    if (const auto path = picker.pick(window(), text(IDC_RESOURCE_FILE_PATH)))
    {
        setText(IDC_RESOURCE_FILE_PATH, *path);
    }
}

void EditResourceFileDlg::onOk()
{
    file.setResourceFilePath(text(IDC_RESOURCE_FILE_PATH));
    if (const wchar_t* const fault = faultOfResourceFile(file.getResourceFilePath(), file.getDisplayName()))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
