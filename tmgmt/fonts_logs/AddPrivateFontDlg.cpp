#include "tmgmt/fonts_logs/AddPrivateFontDlg.h"

#include <commdlg.h>

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/FilePicker.h"

namespace TMgmt
{

AddPrivateFontDlg::AddPrivateFontDlg() noexcept : Dialog(IDD_EDIT_PRIVATE_FONT) {}

bool AddPrivateFontDlg::onInit()
{
    setText(IDC_FONT_FILE, font.file.str());
    setText(IDC_FONT_NAME, font.family.str());
    setChecked(IDC_FONT_BOLD, font.isBold);
    setChecked(IDC_FONT_ITALIC, font.isItalic);
    setChecked(IDC_RESTART_SERVICE, restart);
    return true;
}

void AddPrivateFontDlg::onCommand(int control, int notification)
{
    if (control == IDC_FONT_BROWSE)
    {
        browse();
        return;
    }
    Dialog::onCommand(control, notification);
}

void AddPrivateFontDlg::onOk()
{
    takeControls();
    if (const wchar_t* const fault = faultOf(font))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

void AddPrivateFontDlg::takeControls()
{
    font = {.family = text(IDC_FONT_NAME),
            .file = text(IDC_FONT_FILE),
            .isBold = isChecked(IDC_FONT_BOLD),
            .isItalic = isChecked(IDC_FONT_ITALIC)};
    restart = isChecked(IDC_RESTART_SERVICE);
}

void AddPrivateFontDlg::browse()
{
    takeControls();
    const FilePicker picker{.filters = {{L"Font files (*.afm, *.pfm, *.ttf, *.otf)", L"*.afm;*.pfm;*.ttf;*.otf"},
                                        {L"All Files (*.*)", L"*.*"}},
                            .flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST,
                            .capacity = 260};
    if (const auto chosen = picker.pick(window(), font.file.str()))
    {
        font.file = *chosen;
        setText(IDC_FONT_FILE, *chosen);
    }
}

} // namespace TMgmt
