#include "tmgmt/hotfolders/EditActionsDlg.h"

#include <algorithm>

#include "brimlow/system/StringFormatStream.h"
#include "tmgmt/hotfolders/EditHotFolderActionDlg.h"
#include "tmgmt/hotfolders/rules/ActionMoves.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/messageBox.h"
#include "tmgmt/ui/textWidth.h"

namespace TMgmt
{

EditActionsDlg::EditActionsDlg(HotFolders::ActionList actions_) : Dialog(IDD_ACTIONS), actions(std::move(actions_)) {}

bool EditActionsDlg::onInit()
{
    for (int row = 0; hasAction(actions, row); ++row)
    {
        insertRow(row);
    }
    select(0);
    return true;
}

void EditActionsDlg::onCommand(int control, int notification)
{
    switch (control)
    {
    case IDC_ACTIONS_ADD:
        add();
        break;
    case IDC_ACTIONS_REMOVE:
        remove();
        break;
    case IDC_ACTIONS_EDIT:
        edit();
        break;
    case IDC_ACTIONS_MOVE_UP:
        move(moveUp);
        break;
    case IDC_ACTIONS_MOVE_DOWN:
        move(moveDown);
        break;
    default:
        Dialog::onCommand(control, notification);
    }
}

void EditActionsDlg::add()
{
    EditHotFolderActionDlg editor;
    if (editor.show(GetActiveWindow()) != IDOK)
    {
        return;
    }
    actions.push_back(editor.action);
    const int last = static_cast<int>(actions.size()) - 1;
    insertRow(last);
    select(last);
}

void EditActionsDlg::remove()
{
    const int row = selected();
    if (!hasAction(actions, row))
    {
        return;
    }
    const Core::String question =
        Core::format(L"Do you want to delete action '{0}'?", actions[static_cast<std::size_t>(row)].getDescription());
    if (showMessage(window(), question.c_str(), L"Remove Action", MB_OKCANCEL | MB_ICONQUESTION) != IDOK)
    {
        return;
    }
    actions.erase(actions.begin() + row);
    deleteRow(row);
    select(0);
}

void EditActionsDlg::edit()
{
    const int row = selected();
    if (!hasAction(actions, row))
    {
        return;
    }
    // After Cancel, too, the editor has the action to store: as it was.
    EditHotFolderActionDlg editor(actions[static_cast<std::size_t>(row)]);
    editor.show(GetActiveWindow());
    actions[static_cast<std::size_t>(row)] = editor.action;
    insertRow(row);
    deleteRow(row + 1);
    select(row);
}

void EditActionsDlg::move(std::optional<int> (*rule)(HotFolders::ActionList&, int) noexcept)
{
    const int former = selected();
    if (const auto row = rule(actions, former))
    {
        deleteRow(former);
        insertRow(*row);
        select(*row);
    }
}

int EditActionsDlg::selected() const noexcept
{
    return static_cast<int>(SendMessageW(item(IDC_ACTIONS_LIST), LB_GETCURSEL, 0, 0));
}

void EditActionsDlg::select(int row) noexcept
{
    SendMessageW(item(IDC_ACTIONS_LIST), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

void EditActionsDlg::insertRow(int row)
{
    const HWND list = item(IDC_ACTIONS_LIST);
    const std::wstring text = actions[static_cast<std::size_t>(row)].getDescription().str();
    SendMessageW(list, LB_INSERTSTRING, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.c_str()));
    // A list box does not look itself how far it has to scroll sideways. Its rows begin and end within its frame.
    const int width = textWidth(list, text) + 2 * GetSystemMetrics(SM_CXEDGE);
    const int former = static_cast<int>(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0));
    SendMessageW(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(std::max(width, former)), 0);
}

void EditActionsDlg::deleteRow(int row) noexcept
{
    SendMessageW(item(IDC_ACTIONS_LIST), LB_DELETESTRING, static_cast<WPARAM>(row), 0);
}

} // namespace TMgmt
