#include "kit/WizardWindow.h"

#include <prsht.h>

namespace Acceptance
{

ModalWindow WizardWindow::page() const
{
    return ModalWindow(reinterpret_cast<HWND>(SendMessageW(m_sheet.handle(), PSM_GETCURRENTPAGEHWND, 0, 0)));
}

std::vector<int> WizardWindow::buttons() const
{
    std::vector<int> usable;
    for (const int button : {back, next, finish, static_cast<int>(IDCANCEL)})
    {
        if (m_sheet.visible(button) && m_sheet.enabled(button))
        {
            usable.push_back(button);
        }
    }
    return usable;
}

void WizardWindow::click(int button) const
{
    m_sheet.click(button);
}

void WizardWindow::pressOnPage(int button) const
{
    m_sheet.post(page().control(button), BM_CLICK, 0, 0);
}

} // namespace Acceptance
