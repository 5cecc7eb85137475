#include "WindowsAnswers.h"

#include "UnseenDialogs.h"

#include <cderr.h>

#include <algorithm>
#include <array>
#include <cwchar>

namespace Hostile
{
namespace
{

// What a user types, and what file dialogs give.
constexpr std::array<const wchar_t*, 10> texts{L"",
                                               L"a",
                                               L"1099",
                                               L"Invoices",
                                               L"in|valid",
                                               L"..",
                                               L"C:\\HotFolders\\Invoices",
                                               L"C:\\ProgramData\\Brimlow\\TSvc.config",
                                               L"C:\\there\\is\\none.p12",
                                               L"%s%n{0}{1}&\t\xFFFF"};

// No dialog is so interesting that anyone would use it longer.
constexpr int longestUse = 8;

// One of the plug-in's dialogs in that many is used, the others are cancelled before they open: using one takes as long
// as a hundred other steps.
constexpr std::size_t usedOneIn = 4;

BOOL CALLBACK collect(HWND window, LPARAM windows)
{
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

} // namespace

WindowsAnswers::WindowsAnswers(Whim& whim)
    : m_whim(whim), m_user([this](HWND dialog, int visits) { use(dialog, visits); })
{
    changeService();
}

void WindowsAnswers::changeService()
{
    const auto error = [this](DWORD code) { return m_whim.oneIn(4) ? code : DWORD{NO_ERROR}; };
    m_service.managerError = error(ERROR_ACCESS_DENIED);
    m_service.serviceError = error(ERROR_SERVICE_DOES_NOT_EXIST);
    m_service.queryError = ERROR_INVALID_HANDLE;
    m_service.startError = error(ERROR_SERVICE_DISABLED);
    m_service.controlError = error(ERROR_INVALID_SERVICE_CONTROL);
    m_service.lastStays = !m_whim.oneIn(8);
    m_service.statuses.clear();
    for (std::size_t count = 1 + m_whim.below(4); count > 0; --count)
    {
        m_service.statuses.push_back({.state = static_cast<DWORD>(SERVICE_STOPPED + m_whim.below(7)),
                                      .checkPoint = static_cast<DWORD>(m_whim.below(3)),
                                      .waitHint = static_cast<DWORD>(m_whim.below(20000))});
    }
    m_service.sleeps.clear();
    m_service.waitCursorInSleep.clear();
    m_service.controls.clear();
    m_service.closed.clear();
}

void WindowsAnswers::wait()
{
    if (meanwhile && m_whim.oneIn(4))
    {
        meanwhile();
    }
}

void WindowsAnswers::use(HWND dialog, int visits)
{
    std::vector<HWND> controls;
    EnumChildWindows(dialog, collect, reinterpret_cast<LPARAM>(&controls));
    if (visits >= longestUse || controls.empty())
    {
        HastyUser::dismiss(dialog);
        return;
    }
    wait();
    const int control = GetDlgCtrlID(m_whim.oneOf(controls));
    switch (m_whim.below(6))
    {
    case 0:
        HastyUser::click(dialog, IDOK);
        break;
    case 1:
        HastyUser::click(dialog, IDCANCEL);
        break;
    case 2:
    case 3:
        HastyUser::type(dialog, control, m_whim.oneOf(texts));
        break;
    default:
        HastyUser::click(dialog, control);
    }
}

INT_PTR WindowsAnswers::showDialog(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure, LPARAM parameter)
{
    if (m_whim.oneIn(usedOneIn))
    {
        return showUnseen(module, name, owner, procedure, parameter);
    }
    wait();
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return m_whim.oneIn(8) ? -1 : IDCANCEL;
}

INT_PTR WindowsAnswers::showSheet(LPCPROPSHEETHEADERW sheet)
{
    if (m_whim.oneIn(usedOneIn))
    {
        return showUnseen(*sheet, [this](auto unseen) { return m_sheets.callThrough(unseen); });
    }
    wait();
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return m_whim.oneIn(8) ? -1 : 0;
}

int WindowsAnswers::showMessage(HWND owner, LPCWSTR text, LPCWSTR caption, UINT style)
{
    if (m_whim.oneIn(64))
    {
        return m_messages.callThrough(owner, text, caption, style);
    }
    wait();
    // A message that cannot be shown is answered 0.
    return m_whim.oneIn(8) ? 0 : (style & MB_TYPEMASK) == MB_OK || m_whim.oneIn(2) ? IDOK : IDCANCEL;
}

BOOL WindowsAnswers::chooseFile(LPOPENFILENAMEW request)
{
    wait();
    m_fileDialogError = 0;
    const wchar_t* const text = m_whim.oneOf(texts);
    const std::size_t length = std::wcslen(text);
    if (m_whim.oneIn(2) || length == 0 || length >= request->nMaxFile)
    {
        constexpr std::array<DWORD, 4> errors{0, FNERR_BUFFERTOOSMALL, FNERR_INVALIDFILENAME, CDERR_INITIALIZATION};
        m_fileDialogError = m_whim.oneOf(errors);
        return FALSE;
    }
    std::copy_n(text, length + 1, request->lpstrFile);
    return TRUE;
}

LPITEMIDLIST WindowsAnswers::chooseFolder()
{
    wait();
    switch (m_whim.below(3))
    {
    case 0:
        return ILCreateFromPathW(L"C:\\HotFolders\\Invoices");
    case 1:
    {
        // No folder of the file system.
        LPITEMIDLIST drives = nullptr;
        SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &drives);
        return drives;
    }
    default:
        return nullptr;
    }
}

BOOL WindowsAnswers::report(WORD count, LPCWSTR* reported)
{
    for (WORD i = 0; i < count; ++i)
    {
        m_eventLog.emplace_back(reported[i]);
    }
    return TRUE;
}

} // namespace Hostile
