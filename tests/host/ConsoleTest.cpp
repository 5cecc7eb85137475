#include "HostTest.h"

#include "platform/mmc.h"

#include <wrl/client.h>

using namespace Console;
using Microsoft::WRL::ComPtr;

namespace
{

// Answers the next message box of this thread with a button, as soon as it is activated.
class MessageBoxAnswer
{
  public:
    explicit MessageBoxAnswer(WPARAM button)
    {
        s_button = button;
        s_owner = nullptr;
        m_hook = SetWindowsHookExW(WH_CBT, &MessageBoxAnswer::onEvent, nullptr, GetCurrentThreadId());
    }
    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;
    ~MessageBoxAnswer() { UnhookWindowsHookEx(m_hook); }

    static HWND owner() { return s_owner; }

  private:
    static LRESULT CALLBACK onEvent(int code, WPARAM window, LPARAM parameter)
    {
        wchar_t name[16] = L"";
        const auto box = reinterpret_cast<HWND>(window);
        if (code == HCBT_ACTIVATE && GetClassNameW(box, name, 16) > 0 && wcscmp(name, L"#32770") == 0)
        {
            s_owner = GetWindow(box, GW_OWNER);
            PostMessageW(box, WM_COMMAND, s_button, 0);
        }
        return CallNextHookEx(nullptr, code, window, parameter);
    }

    static inline WPARAM s_button = 0;
    static inline HWND s_owner = nullptr;
    HHOOK m_hook;
};

// Calls the console's interfaces as the snap-in would.
class ConsoleTest : public HostTest
{
  protected:
    void SetUp() override
    {
        HostTest::SetUp();
        view->selectNode(root());
    }
    template <class Interface>
    static ComPtr<Interface> ask(IUnknown* console)
    {
        ComPtr<Interface> found;
        EXPECT_EQ(console->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(found.GetAddressOf())), S_OK);
        return found;
    }
    template <class Interface>
    ComPtr<Interface> data() const
    {
        return ask<Interface>(settings.dataConsole);
    }
    template <class Interface>
    ComPtr<Interface> component() const
    {
        return ask<Interface>(settings.componentConsole);
    }
    NodeId insert(DWORD position, NodeId relative)
    {
        SCOPEDATAITEM item{};
        item.mask = SDI_STR | SDI_PARAM | position;
        item.displayname = platform::askForText();
        item.lParam = ++m_cookie;
        item.relativeID = static_cast<HSCOPEITEM>(relative);
        return SUCCEEDED(data<IConsoleNameSpace>()->InsertItem(&item)) ? static_cast<NodeId>(item.ID) : NodeId::none;
    }

    LPARAM m_cookie = Foreign::firstChildCookie + 1000;
};

} // namespace

TEST_F(ConsoleTest, allInterfacesShareOneIdentity)
{
    const ComPtr<IUnknown> first = component<IUnknown>();
    EXPECT_EQ(ask<IUnknown>(component<IResultData2>().Get()).Get(), first.Get());
    EXPECT_EQ(ask<IUnknown>(component<IHeaderCtrl2>().Get()).Get(), first.Get());
    EXPECT_EQ(ask<IUnknown>(component<IConsole3>().Get()).Get(), first.Get());
    EXPECT_NE(data<IUnknown>().Get(), first.Get()) << "every component has a console of its own";
    void* none = &m_cookie;
    EXPECT_EQ(settings.dataConsole->QueryInterface(__uuidof(IContextMenuCallback), &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
}

TEST_F(ConsoleTest, messageBoxesBelongToTheFrame)
{
    const HWND frame =
        CreateWindowExW(0, L"STATIC", L"frame", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    host->setFrame(frame);
    HWND asked = nullptr;
    EXPECT_EQ(component<IConsole>()->GetMainWindow(&asked), S_OK);
    EXPECT_EQ(asked, frame);
    EXPECT_EQ(component<IConsole>()->GetMainWindow(nullptr), E_INVALIDARG);
    {
        const MessageBoxAnswer answer(IDNO);
        int result = 0;
        EXPECT_EQ(component<IConsole>()->MessageBox(L"Text", nullptr, MB_YESNO, &result), S_OK);
        EXPECT_EQ(result, IDNO);
        EXPECT_EQ(MessageBoxAnswer::owner(), frame);
        EXPECT_EQ(component<IConsole>()->MessageBox(L"Text", L"Title", MB_YESNO, nullptr), S_OK);
    }
    host->setFrame(nullptr);
    DestroyWindow(frame);
}

TEST_F(ConsoleTest, viewChangesReachEveryViewOfTheInstanceUntouched)
{
    Listener otherListener;
    auto other = host->openView(otherListener);
    other->selectNode(child(0));
    settings.viewChanges = 0;
    EXPECT_EQ(data<IConsole>()->UpdateAllViews(nullptr, 0x123456789, -5), S_OK);
    EXPECT_EQ(settings.viewChanges, 2);
    EXPECT_EQ(settings.viewChangeData, 0x123456789);
    EXPECT_EQ(settings.viewChangeHint, -5);
}

TEST_F(ConsoleTest, treeItemsGoWhereTheyAreWanted)
{
    const NodeId first = child(0);
    const NodeId last = child(2);
    const NodeId front = insert(SDI_FIRST, root());
    const NodeId back = insert(SDI_PARENT, root());
    const NodeId after = insert(SDI_PREVIOUS, first);
    const NodeId before = insert(SDI_NEXT, last);
    EXPECT_EQ(tree().children(root()),
              (std::vector{front, first, after, tree().children(root())[3], before, last, back}));
    EXPECT_EQ(view->rowNode(0), front);
    EXPECT_EQ(view->rowNode(2), after);
    EXPECT_EQ(view->rowNode(6), back);
    EXPECT_EQ(insert(SDI_PREVIOUS, root()), NodeId::none) << "beside the static node";
    EXPECT_EQ(insert(SDI_FIRST | SDI_NEXT, first), NodeId::none) << "two places at once";
}

TEST_F(ConsoleTest, treeItemsCanBeWalkedReadAndChanged)
{
    const auto nameSpace = data<IConsoleNameSpace2>();
    HSCOPEITEM item = 0;
    MMC_COOKIE cookie = 0;
    EXPECT_EQ(nameSpace->GetChildItem(static_cast<HSCOPEITEM>(root()), &item, &cookie), S_OK);
    EXPECT_EQ(cookie, Foreign::firstChildCookie);
    EXPECT_EQ(nameSpace->GetNextItem(item, &item, &cookie), S_OK);
    EXPECT_EQ(static_cast<NodeId>(item), child(1));
    HSCOPEITEM parent = 0;
    EXPECT_EQ(nameSpace->GetParentItem(item, &parent, &cookie), S_OK);
    EXPECT_EQ(static_cast<NodeId>(parent), root());
    EXPECT_EQ(nameSpace->GetParentItem(parent, &parent, &cookie), S_FALSE);
    EXPECT_EQ(parent, 0);

    SCOPEDATAITEM read{};
    read.mask = SDI_STATE | SDI_PARAM;
    read.ID = static_cast<HSCOPEITEM>(root());
    EXPECT_EQ(nameSpace->GetItem(&read), S_OK);
    EXPECT_EQ(read.nState, static_cast<UINT>(MMC_SCOPE_ITEM_STATE_EXPANDEDONCE));
    EXPECT_EQ(nameSpace->Expand(item), S_OK);
    EXPECT_EQ(nameSpace->Expand(item), S_FALSE) << "was expanded";

    const int changed = listener.changed;
    SCOPEDATAITEM change{};
    std::wstring name = L"Other name";
    change.mask = SDI_STR;
    change.displayname = name.data();
    change.ID = static_cast<HSCOPEITEM>(root());
    EXPECT_EQ(nameSpace->SetItem(&change), S_OK);
    EXPECT_EQ(tree().text(root()), L"Other name");
    EXPECT_EQ(listener.changed, changed + 1);
    EXPECT_EQ(nameSpace->DeleteItem(static_cast<HSCOPEITEM>(root()), TRUE), E_INVALIDARG) << "the console's own";
    EXPECT_EQ(nameSpace->DeleteItem(static_cast<HSCOPEITEM>(root()), FALSE), S_OK);
    EXPECT_TRUE(tree().children(root()).empty());
    EXPECT_EQ(view->rowCount(), 5);
}

TEST_F(ConsoleTest, rowsCanBeFoundReadAndChanged)
{
    const auto rows = component<IResultData2>();
    HRESULTITEM id = 0;
    EXPECT_EQ(rows->FindItemByLParam(Foreign::firstRowCookie + 2, &id), S_OK);
    EXPECT_EQ(rows->FindItemByLParam(Foreign::firstChildCookie, nullptr), E_POINTER);
    HRESULTITEM none = 1;
    EXPECT_EQ(rows->FindItemByLParam(Foreign::firstChildCookie, &none), S_FALSE) << "a node's row";
    EXPECT_EQ(none, 0);

    RESULTDATAITEM item{};
    item.mask = RDI_PARAM;
    item.itemID = id;
    EXPECT_EQ(rows->GetItem(&item), S_OK);
    EXPECT_EQ(item.nIndex, 5);
    EXPECT_EQ(item.lParam, Foreign::firstRowCookie + 2);
    item.itemID = 0;
    item.nIndex = 1;
    EXPECT_EQ(rows->GetItem(&item), S_OK);
    EXPECT_TRUE(item.bScopeItem);
    EXPECT_EQ(item.lParam, Foreign::firstChildCookie + 1);

    item = {};
    item.mask = RDI_PARAM;
    item.itemID = id;
    item.lParam = Foreign::firstRowCookie + 77;
    EXPECT_EQ(rows->SetItem(&item), S_OK);
    EXPECT_EQ(view->rowText(5, 0), L"Row 77");
    EXPECT_EQ(rows->UpdateItem(id), S_OK);
    EXPECT_EQ(listener.changedRows, (std::vector{5, 5}));
    EXPECT_EQ(rows->RenameResultItem(id), S_OK);
    EXPECT_EQ(listener.renamedRow, 5);
    EXPECT_EQ(rows->DeleteItem(id, 1), E_INVALIDARG);
    EXPECT_EQ(rows->DeleteItem(id, 0), S_OK);
    EXPECT_EQ(rows->DeleteItem(id, 0), E_INVALIDARG);
    EXPECT_EQ(view->rowCount(), 7);
    complaintsExpected = true; // about the dead handle
}

TEST_F(ConsoleTest, rowsGoToThePlaceThatTheyAskFor)
{
    const auto rows = component<IResultData>();
    RESULTDATAITEM item{};
    item.mask = RDI_STR | RDI_PARAM | RDI_INDEX | RDI_INDENT;
    item.str = platform::askForText();
    item.lParam = Foreign::firstRowCookie + 50;
    item.nIndex = 3;
    item.iIndent = 2;
    EXPECT_EQ(rows->InsertItem(&item), S_OK);
    EXPECT_EQ(view->rowText(3, 0), L"Row 50");
    EXPECT_EQ(view->rowIndent(3), 2);
    EXPECT_EQ(view->rowText(4, 0), L"Row 0");
    item.nCol = 1;
    EXPECT_EQ(rows->InsertItem(&item), E_INVALIDARG);
    complaintsExpected = true;
}

TEST_F(ConsoleTest, theSnapInCanSelectRows)
{
    const auto rows = component<IResultData>();
    EXPECT_EQ(rows->ModifyItemState(4, 0, LVIS_SELECTED | LVIS_FOCUSED, 0), S_OK);
    EXPECT_EQ(view->selectedRows(), std::vector{4});
    EXPECT_EQ(view->focusedRow(), 4);
    EXPECT_EQ(rows->ModifyItemState(5, 0, LVIS_SELECTED, 0), S_OK);
    EXPECT_EQ(view->selectedRows(), std::vector{5}) << "one at a time in this list";
    EXPECT_EQ(listener.selections, 2);
    EXPECT_EQ(rows->ModifyItemState(99, 0, LVIS_SELECTED, 0), E_INVALIDARG);
}

TEST_F(ConsoleTest, modesAndStylesAreKept)
{
    const auto rows = component<IResultData>();
    EXPECT_EQ(rows->SetViewMode(MMCLV_VIEWSTYLE_LIST), S_OK);
    EXPECT_EQ(view->viewMode(), MMCLV_VIEWSTYLE_LIST);
    EXPECT_EQ(rows->SetViewMode(9), E_INVALIDARG);
    EXPECT_TRUE(view->sortable());
    EXPECT_EQ(rows->ModifyViewStyle(MMC_NOSORTHEADER, static_cast<MMC_RESULT_VIEW_STYLE>(0)), S_OK);
    EXPECT_FALSE(view->sortable());
    view->clickColumn(0);
    EXPECT_EQ(view->sortColumn(), -1);
    EXPECT_EQ(rows->Sort(1, RSI_DESCENDING | RSI_NOSORTICON, 0), S_OK);
    EXPECT_EQ(view->sortColumn(), -1) << "no arrow";
    EXPECT_EQ(rows->Sort(7, 0, 0), E_INVALIDARG);
}

TEST_F(ConsoleTest, columnsCanBeReadAndChanged)
{
    const auto header = component<IHeaderCtrl>();
    LPOLESTR title = nullptr;
    EXPECT_EQ(header->GetColumnText(1, &title), S_OK);
    EXPECT_STREQ(title, L"Number");
    CoTaskMemFree(title);
    int width = 0;
    EXPECT_EQ(header->SetColumnWidth(1, 91), S_OK);
    EXPECT_EQ(header->GetColumnWidth(1, &width), S_OK);
    EXPECT_EQ(width, 91);
    EXPECT_EQ(header->SetColumnText(1, L"No."), S_OK);
    EXPECT_EQ(view->columns()[1].title, L"No.");
    EXPECT_EQ(header->DeleteColumn(1), E_FAIL) << "there are rows";
    EXPECT_EQ(header->GetColumnWidth(8, &width), E_INVALIDARG);
}

TEST_F(ConsoleTest, rowCallsOfAViewThatShowsSomethingElseAreRefused)
{
    const auto rows = component<IResultData>();
    view->selectNode(NodeId::none);
    EXPECT_EQ(rows->DeleteAllRsltItems(), E_UNEXPECTED);
}

TEST_F(ConsoleTest, stringsAreKept)
{
    const auto strings = data<IStringTable>();
    MMC_STRING_ID id = 0;
    MMC_STRING_ID again = 0;
    EXPECT_EQ(strings->AddString(L"abcdef", &id), S_OK);
    EXPECT_EQ(strings->AddString(L"abcdef", &again), S_OK);
    EXPECT_EQ(id, again);
    ULONG length = 0;
    wchar_t small[4] = L"";
    EXPECT_EQ(strings->GetStringLength(id, &length), S_OK);
    EXPECT_EQ(length, 6u);
    EXPECT_EQ(strings->GetString(id, 4, small, &length), S_OK);
    EXPECT_STREQ(small, L"abc");
    EXPECT_EQ(strings->FindString(L"abcdef", &again), S_OK);
    EXPECT_EQ(strings->DeleteString(id), S_OK);
    EXPECT_EQ(strings->FindString(L"abcdef", &again), E_FAIL);
}

TEST_F(ConsoleTest, columnSettingsCanBeReadBack)
{
    const auto columns = component<IColumnData>();
    SColumnSetID set{0, 1, {7}};
    MMC_COLUMN_DATA widths[] = {{0, 0, 100, 0}, {1, HDI_HIDDEN, 50, 0}};
    MMC_COLUMN_SET_DATA data{sizeof(MMC_COLUMN_SET_DATA), 2, widths};
    MMC_COLUMN_SET_DATA* read = nullptr;
    EXPECT_EQ(columns->GetColumnConfigData(&set, &read), S_FALSE);
    EXPECT_EQ(columns->SetColumnConfigData(&set, &data), S_OK);
    ASSERT_EQ(columns->GetColumnConfigData(&set, &read), S_OK);
    EXPECT_EQ(read->nNumCols, 2);
    EXPECT_EQ(read->pColData[1].nWidth, 50);
    EXPECT_EQ(read->pColData[1].dwFlags, static_cast<DWORD>(HDI_HIDDEN));
    CoTaskMemFree(read);
}

TEST_F(ConsoleTest, selectionsOutsideAnyNotificationHappenAtOnce)
{
    EXPECT_EQ(component<IConsole>()->SelectScopeItem(static_cast<HSCOPEITEM>(child(2))), S_OK);
    EXPECT_EQ(view->selectedNode(), child(2));
    const auto children = tree().children(root());
    // A pointer of the snap-in's own is no handle either, and is not followed.
    for (const HSCOPEITEM none :
         {HSCOPEITEM{0}, HSCOPEITEM{0x1234}, HSCOPEITEM{-1}, reinterpret_cast<HSCOPEITEM>(this)})
    {
        EXPECT_EQ(component<IConsole>()->SelectScopeItem(none), E_FAIL) << none;
        EXPECT_EQ(view->selectedNode(), child(2));
        EXPECT_EQ(tree().children(root()), children);
    }
}

TEST_F(ConsoleTest, dyingHandlesOfOtherSnapInsAreRefused)
{
    SnapIn& second = host->addSnapIn(Foreign::snapInClass);
    ComPtr<IConsole> first = component<IConsole>();
    tree().expand(second.root());
    EXPECT_EQ(first->SelectScopeItem(static_cast<HSCOPEITEM>(tree().firstChild(second.root()))), E_FAIL);
}

TEST_F(ConsoleTest, anotherWindowIsTheListenersToOpen)
{
    EXPECT_EQ(component<IConsole>()->NewWindow(static_cast<HSCOPEITEM>(child(1)), MMC_NW_OPTION_NOTOOLBARS), S_OK);
    EXPECT_EQ(listener.windowNode, child(1));
    EXPECT_EQ(listener.windowOptions, static_cast<DWORD>(MMC_NW_OPTION_NOTOOLBARS));
    EXPECT_EQ(component<IConsole>()->NewWindow(77, 0), E_INVALIDARG);
}

TEST_F(ConsoleTest, expandingInOneViewFetchesTheChildrenAndAsksTheWindow)
{
    recorder.clear();
    EXPECT_EQ(component<IConsole2>()->Expand(static_cast<HSCOPEITEM>(child(0)), TRUE), S_OK);
    EXPECT_TRUE(tree().wasExpanded(child(0)));
    EXPECT_EQ(listener.expandedNode, child(0));
}

TEST_F(ConsoleTest, anExceptionInOneCallLeavesTheCountOfCallsRight)
{
    complaintsExpected = true;
    settings.misdeed = Foreign::Misdeed::throwInText;
    view->rowText(4, 0);
    settings.misdeed = Foreign::Misdeed::none;
    recorder.clear();
    view->rowText(4, 0);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].depth, 0u);
    // And what waits for the end of the outermost call still runs.
    settings.openOnDoubleClick = true;
    view->activateRow(4);
    EXPECT_EQ(view->selectedNode(), child(1));
}

TEST_F(ConsoleTest, obsoleteCallsAreHarmless)
{
    const auto console = component<IConsole2>();
    IUnknown* control = nullptr;
    EXPECT_EQ(console->SetHeader(nullptr), S_OK);
    EXPECT_EQ(console->SetToolbar(nullptr), S_OK);
    EXPECT_EQ(console->IsTaskpadViewPreferred(), S_OK);
    EXPECT_TRUE(FAILED(console->QueryResultView(&control)));
}

TEST_F(ConsoleTest, menusOfTheSnapInsOwnMakingAreRefusedWithoutItems)
{
    const auto provider = component<IContextMenuProvider>();
    EXPECT_EQ(provider->EmptyMenuList(), S_OK);
    EXPECT_EQ(provider->AddItem(nullptr), E_POINTER);
    EXPECT_EQ(provider->AddPrimaryExtensionItems(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(provider->ShowContextMenu(nullptr, 0, 0, nullptr), E_POINTER);
}
