#include "tmgmt/hotfolders/EditHotFolderActionDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/FolderPicker.h"

namespace TMgmt
{

using HotFolders::ActionType;

EditHotFolderActionDlg::EditHotFolderActionDlg(HotFolders::Action action_)
    : Dialog(IDD_ACTION), action(std::move(action_))
{
}

bool EditHotFolderActionDlg::onInit()
{
    for (int button = IDC_ACTION_DELETE; button <= IDC_ACTION_CALL; ++button)
    {
        // A radio button takes the focus as a click on it: for an action of another kind none is to be chosen.
        SendMessageW(item(button), BM_SETDONTCLICK, TRUE, 0);
    }
    switch (action.getType())
    {
    case ActionType::None:
    case ActionType::DeleteInputFile:
        choose(IDC_ACTION_DELETE);
        break;
    case ActionType::MoveInputFile:
        choose(IDC_ACTION_MOVE);
        setText(IDC_ACTION_FOLDER, action.getDestinationPath().str());
        break;
    case ActionType::CallWebService:
        choose(IDC_ACTION_CALL);
        setText(IDC_ACTION_URL, action.getHttpUrl().str());
        break;
    }
    return true;
}

void EditHotFolderActionDlg::choose(int button) noexcept
{
    CheckRadioButton(window(), IDC_ACTION_DELETE, IDC_ACTION_CALL, button);
}

void EditHotFolderActionDlg::onCommand(int control, int notification)
{
    if (control != IDC_ACTION_BROWSE)
    {
        Dialog::onCommand(control, notification);
    }
    // Kept as is: the title is the one under which an input folder is chosen.
    else if (const auto path = FolderPicker{L"Select a folder to monitor"}.pick(window()))
    {
        setText(IDC_ACTION_FOLDER, *path);
    }
}

void EditHotFolderActionDlg::onOk()
{
    if (isChecked(IDC_ACTION_MOVE))
    {
        action.setType(ActionType::MoveInputFile);
        action.setDestinationPath(text(IDC_ACTION_FOLDER));
    }
    else if (isChecked(IDC_ACTION_CALL))
    {
        action.setType(ActionType::CallWebService);
        action.setHttpUrl(text(IDC_ACTION_URL));
    }
    else
    {
        action.setType(ActionType::DeleteInputFile);
    }
    end(IDOK);
}

} // namespace TMgmt
