#include "kit/FileDialog.h"

#include <dlgs.h>

namespace Acceptance
{

// The system takes a plain field or one with a list.
int FileDialog::nameControl() const
{
    return GetDlgItem(m_window.handle(), cmb13) ? cmb13 : edt1;
}

std::wstring FileDialog::name() const
{
    return m_window.text(nameControl());
}

std::vector<std::wstring> FileDialog::filters() const
{
    const HWND list = m_window.control(cmb1);
    std::vector<std::wstring> filters;
    for (LRESULT i = 0; i < SendMessageW(list, CB_GETCOUNT, 0, 0); ++i)
    {
        const auto index = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)), L'\0');
        SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        filters.push_back(std::move(text));
    }
    return filters;
}

int FileDialog::chosenFilter() const
{
    return static_cast<int>(SendMessageW(m_window.control(cmb1), CB_GETCURSEL, 0, 0));
}

void FileDialog::choose(const std::wstring& path)
{
    SetWindowTextW(m_window.control(nameControl()), path.c_str());
    m_window.press(IDOK);
}

} // namespace Acceptance
