#include "fonts_logs/FontsTest.h"
#include "frame/BareSnapIn.h"
#include "kit/ImportSpy.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

class FontsEdit : public FontsTest
{
  protected:
    const Registry::Value no{REG_SZ, L"false"};

    void SetUp() override
    {
        FontsTest::SetUp();
        Registry::preferRestart(false);
    }
};

// Proves: PrivateFontPropertyItem on a double-click.
TEST_F(FontsEdit, opensWithTheRowAndThePreference)
{
    store({{L"MapFont:ARIAL-ITALIC", L"C:\\a.ttf"}, {L"MapFont:B-BOLD", L"b"}});
    openNode();
    for (const bool restart : {false, true})
    {
        Registry::setRestartPreference({REG_SZ, restart ? L"true" : L"false"});
        editor(
            [restart](ModalWindow& dialog)
            {
                EXPECT_EQ(L"ARIAL", dialog.text(FontEditor::name));
                EXPECT_EQ(L"C:\\a.ttf", dialog.text(FontEditor::file));
                EXPECT_FALSE(dialog.checked(FontEditor::bold));
                EXPECT_TRUE(dialog.checked(FontEditor::italic));
                EXPECT_EQ(restart, dialog.checked(FontEditor::restart));
                dialog.press(IDCANCEL);
            });
        view().doubleClick(L"ARIAL");
    }
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_TRUE(dialog.checked(FontEditor::bold));
            EXPECT_FALSE(dialog.checked(FontEditor::italic));
            dialog.press(IDCANCEL);
        });
    view().runCommand(L"B", editCommand);
}

TEST_F(FontsEdit, putsANewKeyInPlaceOfTheOldOne)
{
    store({{L"MapFont:ARIAL-BOLD", L"a"}, {L"MapFont:B", L"b"}});
    openNode();
    edit(L"ARIAL", {.family = L"Frutiger", .file = L"f", .italic = true});
    EXPECT_EQ((Entries{{L"MapFont:B", L"b"}, {L"MapFont:FRUTIGER-ITALIC", L"f"}}), stored());
    const std::vector<Cells> rows{{L"B", L"b", L"No", L"No"}, {L"FRUTIGER", L"f", L"No", L"Yes"}};
    EXPECT_EQ(rows, view().rows());
}

TEST_F(FontsEdit, movesAnUnchangedFontToTheEnd)
{
    store({{L"MapFont:A", L"a"}, {L"MapFont:B", L"b"}});
    openNode();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    view().runCommand(L"A", editCommand);
    EXPECT_EQ((Entries{{L"MapFont:B", L"b"}, {L"MapFont:A", L"a"}}), stored());
    EXPECT_EQ(1, view().indexOf(L"A"));
}

TEST_F(FontsEdit, replacesAnotherFontOfTheNewKey)
{
    store({{L"MapFont:A", L"a"}, {L"MapFont:B", L"b"}});
    openNode();
    edit(L"A", {.family = L"B", .file = L"a"});
    EXPECT_EQ((Entries{{L"MapFont:B", L"a"}}), stored());
}

TEST_F(FontsEdit, writesNeitherFileNorPreferenceWhenItIsCancelled)
{
    store({{L"MapFont:ARIAL", L"a"}});
    const std::string before = ServerFiles::read(file());
    openNode();
    recorder.forgetCalls();
    const auto cancelWith = [this](auto leave)
    {
        editor(
            [leave](ModalWindow& dialog)
            {
                dialog.type(FontEditor::name, L"Other");
                dialog.setChecked(FontEditor::restart, true);
                leave(dialog);
            });
        view().doubleClick(L"ARIAL");
    };
    cancelWith([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    cancelWith([](ModalWindow& dialog) { dialog.key(VK_ESCAPE); });
    cancelWith([](ModalWindow& dialog) { dialog.close(); });
    EXPECT_EQ(before, ServerFiles::read(file()));
    EXPECT_EQ(no, Registry::restartPreference());
    EXPECT_TRUE(recorder.calls(L"IConsole::SelectScopeItem").empty());
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
}

struct ForeignKey
{
    const char* name;
    const wchar_t* key;
    const wchar_t* row;
    // The key of the row when it is confirmed as it is.
    const wchar_t* rebuilt;
};

void PrintTo(const ForeignKey& foreign, std::ostream* out)
{
    *out << foreign.name;
}

class FontsForeignKey : public FontsEdit, public testing::WithParamInterface<ForeignKey>
{
};

// Proves: an entry whose key another program wrote differently is not found and stays beside the new one.
TEST_P(FontsForeignKey, staysBesideTheNewEntryOfAnEdit)
{
    store({{GetParam().key, L"old"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(FontEditor::file, L"new");
            dialog.press(IDOK);
        });
    view().doubleClick(GetParam().row);
    EXPECT_EQ((Entries{{GetParam().key, L"old"}, {GetParam().rebuilt, L"new"}}), stored());
}

TEST_P(FontsForeignKey, staysAfterADeletion)
{
    store({{GetParam().key, L"old"}});
    openNode();
    view().pressDelete(GetParam().row);
    EXPECT_EQ((Entries{{GetParam().key, L"old"}}), stored());
    EXPECT_EQ(1, view().view().rowCount());
}

INSTANTIATE_TEST_SUITE_P(
    Keys, FontsForeignKey,
    testing::Values(ForeignKey{"FamilyWithADash", L"MapFont:MY-FONT", L"MY", L"MapFont:MY"},
                    ForeignKey{"LowerCase", L"MapFont:Arial", L"Arial", L"MapFont:ARIAL"},
                    ForeignKey{"StyleInLowerCase", L"MapFont:ARIAL-bold", L"ARIAL", L"MapFont:ARIAL-BOLD"},
                    ForeignKey{"AnotherStyleWord", L"MapFont:ARIAL-SEMIBOLD", L"ARIAL", L"MapFont:ARIAL-BOLD"},
                    ForeignKey{"ItalicFirst", L"MapFont:ARIAL-ITALIC-BOLD", L"ARIAL", L"MapFont:ARIAL-BOLD-ITALIC"},
                    ForeignKey{"NoMapping", L"Other", L"Other", L"MapFont:OTHER"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FontsEdit, findsAnEntryOfAnyScriptAgain)
{
    openNode();
    add({.family = L"\u03C9\u044F\u00E4\u4E2D \u00DF", .file = L"1"});
    edit(L"\u03A9\u042F\u00C4\u4E2D \u00DF", {.family = L"x", .file = L"2"});
    EXPECT_EQ((Entries{{L"MapFont:X", L"2"}}), stored());
}

TEST_F(FontsEdit, leavesTheFileAloneOfWhatOthersChangedMeanwhile)
{
    store({{L"MapFont:A", L"a"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            store({{L"MapFont:A", L"changed"}, {L"MapAlias:X", L"A"}, {L"MapFont:NEW", L"n"}});
            dialog.type(FontEditor::file, L"mine");
            dialog.press(IDOK);
        });
    view().doubleClick(L"A");
    EXPECT_EQ((Entries{{L"MapAlias:X", L"A"}, {L"MapFont:NEW", L"n"}, {L"MapFont:A", L"mine"}}), stored());
    EXPECT_EQ(2, view().view().rowCount());
}

TEST_F(FontsEdit, addsTheFontWhenItsEntryIsGoneMeanwhile)
{
    store({{L"MapFont:A", L"a"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            ServerFiles::reset();
            dialog.press(IDOK);
        });
    view().doubleClick(L"A");
    EXPECT_EQ((Entries{{L"MapFont:A", L"a"}}), stored());
}

TEST_F(FontsEdit, deletesTheOldKeyThenWritesThePreferenceThenTheNewKey)
{
    store({{L"MapFont:A", L"a"}, {L"MapFont:B", L"b"}});
    openNode();
    using PreferenceSpy = ImportSpy<"RegSetValueExW", decltype(RegSetValueExW)>;
    PreferenceSpy spy(
        [&](HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size)
        {
            EXPECT_STREQ(L"Restart Services", name);
            EXPECT_EQ((Entries{{L"MapFont:B", L"b"}}), stored()) << "saved in between";
            return spy.callThrough(key, name, reserved, type, data, size);
        });
    edit(L"A", {.family = L"C", .file = L"c"});
    EXPECT_EQ(1, spy.calls());
    EXPECT_EQ((Entries{{L"MapFont:B", L"b"}, {L"MapFont:C", L"c"}}), stored());
}

TEST_F(FontsEdit, storesTheRestartBox)
{
    Registry::preferRestart(true);
    store({{L"MapFont:A", L"a"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.setChecked(FontEditor::restart, false);
            dialog.press(IDOK);
        });
    // Without a service a restart would show two boxes.
    view().doubleClick(L"A");
    EXPECT_EQ(no, Registry::restartPreference());
}

// Neither the old entry nor the preference goes for a font that cannot be stored.
TEST_F(FontsEdit, refusesWhatTheFileCannotHoldAndLosesNothing)
{
    store({{L"MapFont:A", L"a"}});
    const std::string before = ServerFiles::read(file());
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            SetWindowTextW(dialog.control(FontEditor::name), L"bell\x07");
            dialog.setChecked(FontEditor::restart, true);
            dialog.press(IDOK);
        });
    fileReport();
    view().doubleClick(L"A");
    EXPECT_EQ(before, ServerFiles::read(file()));
    EXPECT_EQ(no, Registry::restartPreference());
    EXPECT_EQ((std::vector<Cells>{{L"A", L"a", L"No", L"No"}}), view().rows());
}

TEST_F(FontsEdit, outlivesAListThatIsReadAnewMeanwhile)
{
    store({{L"MapFont:A", L"a"}});
    openNode();
    editor(
        [this](ModalWindow& dialog)
        {
            store({{L"MapFont:X", L"x"}});
            view().select(L"Log");
            view().select(node);
            dialog.type(FontEditor::file, L"mine");
            dialog.press(IDOK);
        });
    view().doubleClick(L"A");
    EXPECT_EQ((Entries{{L"MapFont:X", L"x"}, {L"MapFont:A", L"mine"}}), stored());
}

class FontsEditCalls : public FontsEdit
{
};

// Whether an object of the plug-in is at that address: what it begins with is the plug-in's own table of its functions.
bool isObjectOfThePlugIn(HSCOPEITEM address)
{
    const void* const functions = *reinterpret_cast<const void* const*>(address);
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(functions), &module);
    return module && module == GetModuleHandleW(L"TMgmt.dll");
}

// Proves: the node itself stands where a handle of the console's belongs, so that nothing is selected.
TEST_F(FontsEditCalls, passTheNodeItselfAsAHandleAndIgnoreTheAnswer)
{
    store({{L"MapFont:A", L"a"}, {L"MapFont:B", L"b"}});
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM fonts = snapIn.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_SHOW, TRUE, fonts.ID));
    view->console.selectAnswer = E_INVALIDARG;

    frame.activate();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    const MMC_COOKIE a = view->console.results.rows.at(0).lParam;
    EXPECT_EQ(S_OK, view->component->Notify(view->object(a).Get(), MMCN_DBLCLICK, 0, 0));
    ASSERT_EQ(1u, view->console.selections.size());
    const HSCOPEITEM itself = view->console.selections.front();
    EXPECT_TRUE(isObjectOfThePlugIn(itself));
    EXPECT_EQ(2u, view->console.results.rows.size());

    const MMC_COOKIE b = view->console.results.rows.at(0).lParam;
    EXPECT_EQ(L"B", view->cell(b, 0));
    EXPECT_EQ(S_OK, view->component->Notify(view->object(b).Get(), MMCN_DELETE, 0, 0));
    EXPECT_EQ((std::vector<HSCOPEITEM>{itself, itself}), view->console.selections);
    EXPECT_EQ(1u, view->console.results.rows.size());
}

TEST_F(FontsEditCalls, areAnsweredWithAFailureByTheConsoleWhichStaysAsItIs)
{
    store({{L"MapFont:A", L"a"}});
    openNode();
    recorder.forgetCalls();
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    view().doubleClick(L"A");
    const auto selections = recorder.calls(L"IConsole::SelectScopeItem");
    ASSERT_EQ(1u, selections.size());
    EXPECT_TRUE(FAILED(selections.front().result));
    EXPECT_EQ(node, view().selected());
    EXPECT_EQ(1, view().view().rowCount());
}

// A change to a row reaches the row itself: only its texts are asked for again.
// Proves: PrivateFontPropertyItem on a change that another view reports.
TEST_F(FontsEditCalls, drawARowAgainWhoseChangeIsTold)
{
    store({{L"MapFont:A", L"a"}});
    BareSnapIn snapIn;
    const auto view = snapIn.makeView();
    const SCOPEDATAITEM fonts = snapIn.node(node);
    ASSERT_EQ(S_OK, view->component->Notify(snapIn.object(fonts.lParam).Get(), MMCN_SHOW, TRUE, fonts.ID));
    const RESULTDATAITEM row = view->console.results.rows.at(0);
    const int clears = view->console.results.clears;
    EXPECT_EQ(S_OK, view->component->Notify(view->object(row.lParam).Get(), MMCN_VIEW_CHANGE, 0, 0));
    EXPECT_EQ(std::vector<HRESULTITEM>{row.itemID}, view->console.results.updated);
    EXPECT_EQ(clears, view->console.results.clears);
}

} // namespace
} // namespace Acceptance
