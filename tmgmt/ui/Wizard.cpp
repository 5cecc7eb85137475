#include "tmgmt/ui/Wizard.h"

#include <prsht.h>

#include <system_error>

#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{

bool Wizard::show(HWND owner)
{
    std::vector<PROPSHEETPAGEW> pages;
    pages.reserve(m_pages.size());
    for (WizardPage* const page : m_pages)
    {
        PROPSHEETPAGEW& record = pages.emplace_back();
        record.dwSize = sizeof record;
        record.dwFlags = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
        record.hInstance = moduleInstance();
        record.pszTemplate = MAKEINTRESOURCEW(page->m_resource);
        record.pszHeaderTitle = page->m_title;
        record.pszHeaderSubTitle = page->m_subtitle;
        record.pfnDlgProc = WizardPage::procedure;
        record.lParam = reinterpret_cast<LPARAM>(page);
    }
    PROPSHEETHEADERW sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_WIZARD97 | PSH_HEADER | PSH_PROPSHEETPAGE | PSH_NOCONTEXTHELP;
    sheet.hwndParent = owner;
    sheet.hInstance = moduleInstance();
    sheet.nPages = static_cast<UINT>(pages.size());
    sheet.ppsp = pages.data();

    m_way.clear();
    const platform::VisualStyles::Scope scope(moduleStyles());
    const INT_PTR result = PropertySheetW(&sheet);
    const DWORD error = GetLastError();
    for (WizardPage* const page : m_pages)
    {
        page->closed();
    }
    if (result < 0)
    {
        throw std::system_error(static_cast<int>(error), std::system_category(), "A wizard cannot be shown");
    }
    return result > 0;
}

UINT Wizard::goOn(UINT from, UINT to)
{
    m_way.push_back(from);
    return to;
}

std::optional<UINT> Wizard::goBack()
{
    if (m_way.empty())
    {
        return std::nullopt;
    }
    const UINT former = m_way.back();
    m_way.pop_back();
    return former;
}

} // namespace TMgmt
