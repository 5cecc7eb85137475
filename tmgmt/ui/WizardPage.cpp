#include "tmgmt/ui/WizardPage.h"

#include <prsht.h>

#include "tmgmt/ui/Wizard.h"

namespace TMgmt
{
namespace
{

// What a page answers to keep the user on it.
constexpr LONG_PTR stay = -1;

} // namespace

WizardPage::WizardPage(Wizard& wizard, UINT resource, const wchar_t* title, const wchar_t* subtitle)
    : m_wizard(wizard), m_resource(resource), m_title(title), m_subtitle(subtitle)
{
    wizard.m_pages.push_back(this);
}

INT_PTR CALLBACK WizardPage::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept
{
    WizardPage* created = nullptr;
    if (message == WM_INITDIALOG)
    {
        created = reinterpret_cast<WizardPage*>(reinterpret_cast<const PROPSHEETPAGEW*>(lparam)->lParam);
    }
    return dispatch(window, message, wparam, lparam, created);
}

INT_PTR WizardPage::handle(UINT message, WPARAM wparam, LPARAM lparam)
{
    switch (message)
    {
    case WM_INITDIALOG:
        onInit();
        return TRUE;
    case WM_COMMAND:
        onCommand(LOWORD(wparam), HIWORD(wparam));
        return TRUE;
    case WM_NOTIFY:
        return notified(reinterpret_cast<const NMHDR*>(lparam)->code);
    default:
        return FALSE;
    }
}

INT_PTR WizardPage::notified(UINT code)
{
    switch (code)
    {
    case PSN_SETACTIVE:
        SendMessageW(sheet(), PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(buttons()));
        return answer(0);
    case PSN_WIZNEXT:
    {
        const std::optional<UINT> next = onNext();
        return answer(next ? static_cast<LONG_PTR>(m_wizard.goOn(m_resource, *next)) : stay);
    }
    case PSN_WIZBACK:
    {
        const std::optional<UINT> former = m_wizard.goBack();
        return answer(former ? static_cast<LONG_PTR>(*former) : stay);
    }
    case PSN_WIZFINISH:
        // TRUE keeps the wizard open.
        return answer(onFinish() ? FALSE : TRUE);
    default:
        return FALSE;
    }
}

INT_PTR WizardPage::answer(LONG_PTR result) noexcept
{
    SetWindowLongPtrW(window(), DWLP_MSGRESULT, result);
    return TRUE;
}

void WizardPage::abandon() noexcept
{
    answer(stay);
    PostMessageW(sheet(), PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

} // namespace TMgmt
