#pragma once

#include "HastyUser.h"
#include "Whim.h"

#include "frame/SimulatedService.h"
#include "kit/ImportSpy.h"

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>

#include <functional>
#include <string>
#include <vector>

namespace Hostile
{

// Windows as the plug-in sees it, as moody as the console: dialogs are used at random, cancelled, or cannot be shown;
// the service does anything; the shell and the system's file dialogs answer at once. There is one at a time.
class WindowsAnswers
{
  public:
    explicit WindowsAnswers(Whim& whim);

    // While a message or a dialog waits for its user, other things go on in the console.
    std::function<void()> meanwhile;

    // New answers of the service.
    void changeService();
    // What the plug-in wrote to the event log, which it does with what it did not expect.
    const std::vector<std::wstring>& eventLog() const { return m_eventLog; }
    int dialogs() const { return m_user.seen(); }
    int messages() const { return m_messages.calls(); }

  private:
    void use(HWND dialog, int visits);
    // Lets other things go on, or not.
    void wait();
    INT_PTR showDialog(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure, LPARAM parameter);
    INT_PTR showSheet(LPCPROPSHEETHEADERW sheet);
    int showMessage(HWND owner, LPCWSTR text, LPCWSTR caption, UINT style);
    BOOL chooseFile(LPOPENFILENAMEW request);
    LPITEMIDLIST chooseFolder();
    BOOL report(WORD count, LPCWSTR* texts);

    template <Acceptance::ImportName name, class Function>
    using Spy = Acceptance::ImportSpy<name, Function>;

    Whim& m_whim;
    HastyUser m_user;
    Acceptance::SimulatedService m_service;
    DWORD m_fileDialogError = 0;
    std::vector<std::wstring> m_eventLog;

    Spy<"DialogBoxParamW", decltype(DialogBoxParamW)> m_dialogs{[this](auto... rest) { return showDialog(rest...); }};
    Spy<"PropertySheetW", decltype(PropertySheetW)> m_sheets{[this](auto sheet) { return showSheet(sheet); }};
    Spy<"MessageBoxW", decltype(MessageBoxW)> m_messages{[this](auto... rest) { return showMessage(rest...); }};
    Spy<"GetOpenFileNameW", decltype(GetOpenFileNameW)> m_open{[this](auto request) { return chooseFile(request); }};
    Spy<"GetSaveFileNameW", decltype(GetSaveFileNameW)> m_save{[this](auto request) { return chooseFile(request); }};
    Spy<"CommDlgExtendedError", decltype(CommDlgExtendedError)> m_fileError{[this] { return m_fileDialogError; }};
    Spy<"SHBrowseForFolderW", decltype(SHBrowseForFolderW)> m_folders{[this](auto) { return chooseFolder(); }};
    Spy<"ShellExecuteW", decltype(ShellExecuteW)> m_shell{[this](auto...)
                                                          {
                                                              wait();
                                                              return reinterpret_cast<HINSTANCE>(UINT_PTR{42});
                                                          }};
    Spy<"ReportEventW", decltype(ReportEventW)> m_reports{
        [this](auto, auto, auto, auto, auto, WORD count, auto, LPCWSTR* texts, auto) { return report(count, texts); }};
};

} // namespace Hostile
