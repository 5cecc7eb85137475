#include "DialogPlay.h"

#include "UnseenDialogs.h"

#include "certificates/Authority.h"
#include "kit/windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <filesystem>

namespace Hostile
{
namespace
{

constexpr wchar_t chosenFile[] = L"C:\\HostileChoice.p12";

BOOL chooseFile(OPENFILENAMEW* request)
{
    std::copy_n(chosenFile, std::size(chosenFile), request->lpstrFile);
    return TRUE;
}

int numberOf(LPCWSTR resource)
{
    return LOWORD(reinterpret_cast<ULONG_PTR>(resource));
}

} // namespace

DialogPlay::DialogPlay(Instance& instance, View& view)
    : m_instance(instance),
      m_view(view),
      m_dialogs(
          [this](HINSTANCE module, LPCWSTR name, auto... rest)
          {
              m_resources.insert(numberOf(name));
              note("dialog " + std::to_string(numberOf(name)));
              return showUnseen(module, name, rest...);
          }),
      m_sheets(
          [this](LPCPROPSHEETHEADERW sheet)
          {
              m_pages.clear();
              std::transform(sheet->ppsp, sheet->ppsp + sheet->nPages, std::back_inserter(m_pages),
                             [](const PROPSHEETPAGEW& page) { return numberOf(page.pszTemplate); });
              return showUnseen(*sheet, [this](auto unseen) { return m_sheets.callThrough(unseen); });
          }),
      m_messages(
          [this](HWND owner, LPCWSTR text, auto... rest)
          {
              note("message box: " + Acceptance::narrow(text));
              return m_use->showsMessages ? m_messages.callThrough(owner, text, rest...) : IDOK;
          }),
      m_open(chooseFile),
      m_save(chooseFile),
      m_folders([](auto) { return ILCreateFromPathW(L"C:\\HotFolders\\Invoices"); })
{
    Acceptance::authority().issue(L"secret.example", 1, secretFile, L"a password");
}

DialogPlay::~DialogPlay()
{
    std::error_code ignored;
    std::filesystem::remove(secretFile, ignored);
    std::filesystem::remove(chosenFile, ignored);
}

void DialogPlay::choose(const DialogUse& use)
{
    m_use = &use;
    const HSCOPEITEM node = m_instance.find(use.node);
    if (use.row == DialogUse::itself)
    {
        m_target = m_instance.object(m_instance.cookieOf(node));
        return;
    }
    m_instance.show(m_view, node);
    const MMC_COOKIE row = m_view.console.rows().at(static_cast<std::size_t>(use.row)).cookie;
    m_view.component->QueryDataObject(row, CCT_RESULT, m_target.ReleaseAndGetAddressOf());
    m_view.console.clearPane();
}

void DialogPlay::play()
{
    m_next = 0;
    m_record.clear();
    m_view.as<IExtendContextMenu>()->Command(m_use->command, m_target.Get());
    if (m_next != m_use->presses.size())
    {
        ADD_FAILURE() << m_use->name << " ended before its press " << m_next + 1 << "\n" << m_record;
    }
}

void DialogPlay::use(HWND dialog)
{
    if (const HWND page = HastyUser::panelOf(dialog); page != dialog)
    {
        const auto index = SendMessageW(dialog, PSM_HWNDTOINDEX, reinterpret_cast<WPARAM>(page), 0);
        const int number = m_pages.at(static_cast<std::size_t>(index));
        m_resources.insert(number);
        note("page " + std::to_string(number));
    }
    if (m_next == m_use->presses.size())
    {
        HastyUser::dismiss(dialog);
        return;
    }
    press(dialog, m_use->presses.at(m_next++));
}

void DialogPlay::press(HWND dialog, const Press& press)
{
    const HWND control = HastyUser::controlOf(dialog, press.control);
    note((press.text ? "  types into " : "  clicks ") + std::to_string(press.control));
    if (!control || !IsWindowEnabled(control))
    {
        ADD_FAILURE() << m_use->name << " is out of step at its press " << m_next << ": control " << press.control
                      << (control ? " is disabled" : " is not there") << "\n"
                      << m_record << Acceptance::narrow(Acceptance::describeWindow(dialog));
        // What is open closes without any more presses.
        m_next = m_use->presses.size();
        HastyUser::dismiss(dialog);
    }
    else if (press.text)
    {
        HastyUser::type(dialog, press.control, press.text);
    }
    else
    {
        HastyUser::click(dialog, press.control);
    }
}

void DialogPlay::note(const std::string& line)
{
    m_record.append(line).append("\n");
}

} // namespace Hostile
