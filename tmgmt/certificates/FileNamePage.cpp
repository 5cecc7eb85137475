#include "tmgmt/certificates/FileNamePage.h"

#include <prsht.h>

#include "tmgmt/resources/ids.h"

namespace TMgmt
{

std::wstring FileNamePage::fileName() const
{
    return text(IDC_WIZARD_FILE);
}

void FileNamePage::onCommand(int control, int)
{
    if (control != IDC_WIZARD_BROWSE)
    {
        return;
    }
    if (const auto chosen = picker().pick(window(), fileName()))
    {
        setText(IDC_WIZARD_FILE, *chosen);
    }
}

DWORD FileNamePage::buttons() const
{
    return PSWIZB_BACK | PSWIZB_FINISH;
}

} // namespace TMgmt
