#include "hotfolders/HotFolderDialogTest.h"

#include "tmgmt/hotfolders/EditActionsDlg.h"

namespace
{

using Acceptance::Owner;
using HotFolders::Action;
using HotFolders::ActionList;
using HotFolders::ActionType;
using TMgmt::EditActionsDlg;

constexpr wchar_t caption[] = L"Actions";
constexpr wchar_t editorCaption[] = L"Edit Action";
constexpr int list = 260;
constexpr int add = 258;
constexpr int removeButton = 259;
constexpr int edit = 261;
constexpr int moveUp = 237;
constexpr int moveDown = 257;
constexpr int editorFolder = 232;
constexpr int editorMove = 264;

using Acceptance::ModalWindow;
using Rows = std::vector<std::wstring>;

// A list box, as its user sees it.
class ListBox
{
  public:
    explicit ListBox(const ModalWindow& window) : m_list(window.control(list)) {}

    Rows rows() const
    {
        Rows rows;
        for (LRESULT i = 0; i < SendMessageW(m_list, LB_GETCOUNT, 0, 0); ++i)
        {
            const auto row = static_cast<WPARAM>(i);
            std::wstring text(static_cast<std::size_t>(SendMessageW(m_list, LB_GETTEXTLEN, row, 0)), L'\0');
            SendMessageW(m_list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
            rows.push_back(std::move(text));
        }
        return rows;
    }
    int selected() const { return static_cast<int>(SendMessageW(m_list, LB_GETCURSEL, 0, 0)); }
    void select(int row) const { SendMessageW(m_list, LB_SETCURSEL, static_cast<WPARAM>(row), 0); }
    void append(const wchar_t* text) const { SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)); }
    int scrollWidth() const { return static_cast<int>(SendMessageW(m_list, LB_GETHORIZONTALEXTENT, 0, 0)); }

  private:
    HWND m_list;
};

class EditActionsDlgTest : public HotFolderDialogTest
{
  protected:
    static Action moveTo(const std::wstring& path)
    {
        Action action;
        action.setType(ActionType::MoveInputFile);
        action.setDestinationPath(path);
        return action;
    }

    // Not in the order of the alphabet, so that a sorted list shows itself.
    static ActionList threeActions() { return {moveTo(L"C:\\c"), moveTo(L"C:\\a"), moveTo(L"C:\\b")}; }

    void inDialog(const std::function<void(ModalWindow&)>& use) { robot().dialog(caption, use); }

    // The robot uses the editor of an action that the dialog opens.
    void inEditor(const std::function<void(ModalWindow&)>& use) { robot().dialog(editorCaption, use, Owner::dialog); }

    void answerRemoval(const std::wstring& description, int answer)
    {
        robot().message({.text = L"Do you want to delete action '" + description + L"'?",
                         .caption = L"Remove Action",
                         .icon = MB_ICONQUESTION,
                         .owner = Owner::dialog,
                         .buttons = {IDOK, IDCANCEL},
                         .answer = answer});
    }

    // The last look at the dialog.
    void expectAndPress(const Rows& rows, int selected, int button)
    {
        inDialog(
            [=](ModalWindow& window)
            {
                EXPECT_EQ(ListBox(window).rows(), rows);
                EXPECT_EQ(ListBox(window).selected(), selected);
                window.press(button);
            });
    }
};

TEST_F(EditActionsDlgTest, hasTheseControls)
{
    EditActionsDlg dialog({});
    inDialog(
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                   L"-1 Static Actions:", // which is not seen
                                                                   L"260 ListBox ",
                                                                   L"258 Button &Add",
                                                                   L"259 Button &Remove",
                                                                   L"261 Button &Edit",
                                                                   L"237 Button Move &Up",
                                                                   L"257 Button Move &Down",
                                                                   L"1 Button OK",
                                                                   L"2 Button Cancel",
                                                               }));
            EXPECT_EQ(Acceptance::tabOrderOf(window.handle()),
                      (Ids{list, add, removeButton, edit, moveUp, moveDown, IDOK, IDCANCEL}));
            EXPECT_FALSE(GetWindowLongW(window.control(list), GWL_STYLE) & LBS_SORT);
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditActionsDlgTest, listsTheActionsInTheirOrderAndSelectsTheFirst)
{
    EditActionsDlg dialog(threeActions());
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\a", L"Move input file to C:\\b"}, 0, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, threeActions());
}

TEST_F(EditActionsDlgTest, takesAnEmptyList)
{
    EditActionsDlg dialog({});
    expectAndPress({}, -1, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_TRUE(dialog.actions.empty());
}

TEST_F(EditActionsDlgTest, scrollsSidewaysAsFarAsItsWidestRow)
{
    EditActionsDlg dialog({moveTo(std::wstring(300, L'W')), moveTo(L"C:\\a")});
    inDialog(
        [](ModalWindow& window)
        {
            RECT area{};
            GetClientRect(window.control(list), &area);
            EXPECT_GT(ListBox(window).scrollWidth(), 2 * area.right);
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditActionsDlgTest, addsADefaultActionAtTheEndAndSelectsIt)
{
    EditActionsDlg dialog({moveTo(L"C:\\c"), moveTo(L"C:\\a")});
    inDialog([](ModalWindow& window) { window.press(add); });
    inEditor(
        [](ModalWindow& window)
        {
            EXPECT_TRUE(window.checked(263));
            EXPECT_EQ(window.text(232), L"");
            EXPECT_EQ(window.text(233), L"");
            window.press(IDOK);
        });
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\a", L"Delete input file"}, 2, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    ASSERT_EQ(dialog.actions.size(), 3U);
    EXPECT_EQ(dialog.actions[2].getType(), ActionType::DeleteInputFile);
}

TEST_F(EditActionsDlgTest, addsTheFirstActionOfAnEmptyList)
{
    EditActionsDlg dialog({});
    inDialog([](ModalWindow& window) { window.press(add); });
    inEditor(
        [](ModalWindow& window)
        {
            window.setChecked(editorMove, true);
            window.type(editorFolder, L"C:\\{0} & more");
            window.press(IDOK);
        });
    expectAndPress({L"Move input file to C:\\{0} & more"}, 0, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, ActionList{moveTo(L"C:\\{0} & more")});
}

TEST_F(EditActionsDlgTest, addsNothingWhenTheEditorIsCancelled)
{
    EditActionsDlg dialog({moveTo(L"C:\\c"), moveTo(L"C:\\a")});
    inDialog(
        [](ModalWindow& window)
        {
            ListBox(window).select(1);
            window.press(add);
        });
    inEditor([](ModalWindow& window) { window.press(IDCANCEL); });
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\a"}, 1, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, (ActionList{moveTo(L"C:\\c"), moveTo(L"C:\\a")}));
}

TEST_F(EditActionsDlgTest, removesTheSelectedActionAfterAskingAndSelectsTheFirst)
{
    EditActionsDlg dialog(threeActions());
    inDialog(
        [](ModalWindow& window)
        {
            ListBox(window).select(1);
            window.press(removeButton);
        });
    answerRemoval(L"Move input file to C:\\a", IDOK);
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\b"}, 0, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, (ActionList{moveTo(L"C:\\c"), moveTo(L"C:\\b")}));
}

TEST_F(EditActionsDlgTest, keepsTheActionWhenTheQuestionIsCancelled)
{
    EditActionsDlg dialog(threeActions());
    inDialog(
        [](ModalWindow& window)
        {
            ListBox(window).select(2);
            window.press(removeButton);
        });
    answerRemoval(L"Move input file to C:\\b", IDCANCEL);
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\a", L"Move input file to C:\\b"}, 2, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, threeActions());
}

TEST_F(EditActionsDlgTest, removesTheLastActionThatIsLeft)
{
    EditActionsDlg dialog({moveTo(L"C:\\{0}")});
    inDialog([](ModalWindow& window) { window.press(removeButton); });
    answerRemoval(L"Move input file to C:\\{0}", IDOK);
    expectAndPress({}, -1, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_TRUE(dialog.actions.empty());
}

TEST_F(EditActionsDlgTest, editsACopyAndShowsTheChangedAction)
{
    EditActionsDlg dialog(threeActions());
    inDialog(
        [](ModalWindow& window)
        {
            ListBox(window).select(1);
            window.press(edit);
        });
    inEditor(
        [](ModalWindow& window)
        {
            EXPECT_EQ(window.text(editorFolder), L"C:\\a");
            window.type(editorFolder, L"C:\\new");
            window.press(IDOK);
        });
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\new", L"Move input file to C:\\b"}, 1, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, (ActionList{moveTo(L"C:\\c"), moveTo(L"C:\\new"), moveTo(L"C:\\b")}));
}

TEST_F(EditActionsDlgTest, takesTypePathAndUrlOfTheEditedAction)
{
    EditActionsDlg dialog({moveTo(L"C:\\c")});
    inDialog([](ModalWindow& window) { window.press(edit); });
    inEditor(
        [](ModalWindow& window)
        {
            window.setChecked(265, true);
            window.type(233, L"http://host/");
            window.press(IDOK);
        });
    expectAndPress({L"Call http://host/"}, 0, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    Action expected = moveTo(L"C:\\c");
    expected.setType(ActionType::CallWebService);
    expected.setHttpUrl(L"http://host/");
    EXPECT_EQ(dialog.actions, ActionList{expected});
}

TEST_F(EditActionsDlgTest, leavesTextAndValuesAsTheyWereWhenTheEditorIsCancelled)
{
    EditActionsDlg dialog(threeActions());
    inDialog(
        [](ModalWindow& window)
        {
            ListBox(window).select(2);
            window.press(edit);
        });
    inEditor(
        [](ModalWindow& window)
        {
            window.type(editorFolder, L"C:\\new");
            window.press(IDCANCEL);
        });
    expectAndPress({L"Move input file to C:\\c", L"Move input file to C:\\a", L"Move input file to C:\\b"}, 2, IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.actions, threeActions());
}

// The row is made anew after Cancel, too.
TEST_F(EditActionsDlgTest, writesTheRowAgainWhenTheEditorIsCancelled)
{
    EditActionsDlg dialog({moveTo(L"C:\\c")});
    inDialog(
        [](ModalWindow& window)
        {
            const HWND box = window.control(list);
            SendMessageW(box, LB_DELETESTRING, 0, 0);
            ListBox(window).append(L"another text");
            ListBox(window).select(0);
            window.press(edit);
        });
    inEditor([](ModalWindow& window) { window.press(IDCANCEL); });
    expectAndPress({L"Move input file to C:\\c"}, 0, IDCANCEL);
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditActionsDlgTest, movesTheSelectedActionUpAndDownAndItsSelectionWithIt)
{
    struct Case
    {
        int selected;
        int button;
        Rows rows;
        int after;
    };
    const std::wstring a = L"Move input file to C:\\a";
    const std::wstring b = L"Move input file to C:\\b";
    const std::wstring c = L"Move input file to C:\\c";
    const Case cases[] = {
        {0, moveUp, {c, a, b}, 0},   {1, moveUp, {a, c, b}, 0},   {2, moveUp, {c, b, a}, 1},
        {0, moveDown, {a, c, b}, 1}, {1, moveDown, {c, b, a}, 2}, {2, moveDown, {c, a, b}, 2},
    };
    for (const Case& expected : cases)
    {
        EditActionsDlg dialog(threeActions());
        inDialog(
            [&](ModalWindow& window)
            {
                ListBox(window).select(expected.selected);
                window.click(expected.button);
                EXPECT_EQ(ListBox(window).rows(), expected.rows);
                EXPECT_EQ(ListBox(window).selected(), expected.after);
                window.press(IDOK);
            });
        EXPECT_EQ(dialog.show(frame()), IDOK);
        Rows stored;
        for (const Action& action : dialog.actions)
        {
            stored.push_back(action.getDescription().str());
        }
        EXPECT_EQ(stored, expected.rows);
    }
}

TEST_F(EditActionsDlgTest, doesNothingWithoutASelectionOrBehindTheLastAction)
{
    for (const int row : {-1, 3})
    {
        EditActionsDlg dialog(threeActions());
        inDialog(
            [row](ModalWindow& window)
            {
                const ListBox box(window);
                box.append(L"no action");
                const Rows rows = box.rows();
                for (const int button : {removeButton, edit, moveUp, moveDown})
                {
                    box.select(row);
                    window.click(button);
                    EXPECT_EQ(box.rows(), rows) << button;
                    EXPECT_EQ(box.selected(), row) << button;
                }
                window.press(IDOK);
            });
        EXPECT_EQ(dialog.show(frame()), IDOK);
        EXPECT_EQ(dialog.actions, threeActions());
    }
}

} // namespace
