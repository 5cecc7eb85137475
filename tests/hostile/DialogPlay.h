#pragma once

#include "DialogUses.h"
#include "HastyUser.h"
#include "Instance.h"

#include "kit/ImportSpy.h"

#include <commctrl.h>
#include <commdlg.h>
#include <shlobj.h>

#include <set>
#include <string>
#include <vector>

namespace Hostile
{

// Goes through the plug-in's dialogs as a use of them says, and fails the test where a press finds nothing to press:
// then something else is before the user than the use was written for. There is one at a time.
class DialogPlay
{
  public:
    // A PKCS #12 file with a password. It is there while a play is.
    static constexpr wchar_t secretFile[] = L"C:\\HostileSecret.p12";

    DialogPlay(Instance& instance, View& view);
    ~DialogPlay();

    // Shows the node of that use and looks for what the command goes to; play repeats the use as often as wanted.
    void choose(const DialogUse& use);
    void play();

    // So far, over all plays.
    const std::set<int>& resources() const { return m_resources; }
    int windows() const { return m_user.seen(); }
    int messages() const { return m_messages.calls(); }
    int pickers() const { return m_open.calls() + m_save.calls() + m_folders.calls(); }
    // Of the last play: what came, message boxes with their texts, and what was pressed, a line each.
    const std::string& record() const { return m_record; }

  private:
    template <Acceptance::ImportName name, class Function>
    using Spy = Acceptance::ImportSpy<name, Function>;

    void use(HWND dialog);
    void press(HWND dialog, const Press& press);
    void note(const std::string& line);

    Instance& m_instance;
    View& m_view;
    const DialogUse* m_use = nullptr;
    Microsoft::WRL::ComPtr<IDataObject> m_target;
    std::size_t m_next = 0;
    std::string m_record;
    std::set<int> m_resources;
    std::vector<int> m_pages; // of the wizard, in the order of the sheet

    HastyUser m_user{[this](HWND dialog, int) { use(dialog); }};
    Spy<"DialogBoxParamW", decltype(DialogBoxParamW)> m_dialogs;
    Spy<"PropertySheetW", decltype(PropertySheetW)> m_sheets;
    Spy<"MessageBoxW", decltype(MessageBoxW)> m_messages;
    Spy<"GetOpenFileNameW", decltype(GetOpenFileNameW)> m_open;
    Spy<"GetSaveFileNameW", decltype(GetSaveFileNameW)> m_save;
    Spy<"SHBrowseForFolderW", decltype(SHBrowseForFolderW)> m_folders;
};

} // namespace Hostile
