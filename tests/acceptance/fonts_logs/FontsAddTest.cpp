#include "fonts_logs/FontsTest.h"
#include "kit/windows.h"

namespace Acceptance
{
namespace
{

class FontsAdd : public FontsTest
{
};

TEST_F(FontsAdd, opensAnEmptyEditor)
{
    openNode();
    editor(
        [this](ModalWindow& dialog)
        {
            EXPECT_FALSE(IsWindowEnabled(frame.handle())) << "the editor is modal";
            EXPECT_EQ(L"", dialog.text(FontEditor::name));
            EXPECT_EQ(L"", dialog.text(FontEditor::file));
            EXPECT_FALSE(dialog.checked(FontEditor::bold));
            EXPECT_FALSE(dialog.checked(FontEditor::italic));
            EXPECT_FALSE(dialog.checked(FontEditor::restart)) << "whatever the preference says";
            dialog.press(IDCANCEL);
        });
    view().runNodeCommand(node, addCommand);
}

TEST_F(FontsAdd, storesTheKeyInUpperCaseAndShowsIt)
{
    openNode();
    add({.family = L"Arial", .file = L"C:\\Fonts\\Arial.ttf", .bold = true, .italic = true});
    EXPECT_EQ((Entries{{L"MapFont:ARIAL-BOLD-ITALIC", L"C:\\Fonts\\Arial.ttf"}}), stored());
    EXPECT_EQ((std::vector<Cells>{{L"ARIAL", L"C:\\Fonts\\Arial.ttf", L"Yes", L"Yes"}}), view().rows());
}

TEST_F(FontsAdd, storesEachStyleUnderItsOwnKey)
{
    openNode();
    add({.family = L"Arial", .file = L"1"});
    add({.family = L"Arial", .file = L"2", .bold = true});
    add({.family = L"Arial", .file = L"3", .italic = true});
    const Entries entries{{L"MapFont:ARIAL", L"1"}, {L"MapFont:ARIAL-BOLD", L"2"}, {L"MapFont:ARIAL-ITALIC", L"3"}};
    EXPECT_EQ(entries, stored());
    EXPECT_EQ(3, view().view().rowCount());
}

TEST_F(FontsAdd, replacesTheFileOfAnExistingKeyInItsPlace)
{
    store({{L"MapFont:ARIAL", L"old"}, {L"MapFont:B", L"b"}});
    openNode();
    add({.family = L"aRIAL", .file = L"new"});
    EXPECT_EQ((Entries{{L"MapFont:ARIAL", L"new"}, {L"MapFont:B", L"b"}}), stored());
    EXPECT_EQ(L"new", view().cell(L"ARIAL", L"Font File Path"));
}

TEST_F(FontsAdd, takesTextsAsTheyAre)
{
    openNode();
    const struct
    {
        const wchar_t* family;
        const wchar_t* file;
        const wchar_t* key;
    } cases[] = {
        {L" ", L" no such file ", L"MapFont: "},
        {L"<&\"'>", L"<&\"'>", L"MapFont:<&\"'>"},
        {L"{0}", L"{1}", L"MapFont:{0}"},
        {L"\u03C9 \u044F \u00E4 \u4E2D", L"C:\\\u00FC\U0001F600.ttf", L"MapFont:\u03A9 \u042F \u00C4 \u4E2D"},
        {L"Stra\u00DFe", L"x", L"MapFont:STRA\u00DFE"},
        {L"my-font", L"y", L"MapFont:MY-FONT"},
    };
    for (const auto& [family, path, key] : cases)
    {
        add({.family = family, .file = path});
        EXPECT_EQ(path, stored(key)) << narrow(key);
    }
    EXPECT_EQ(L"y", view().cell(L"MY", L"Font File Path"));
}

TEST_F(FontsAdd, writesNothingWhenItIsCancelled)
{
    openNode();
    recorder.forgetCalls();
    const auto cancelWith = [this](auto leave)
    {
        editor(
            [leave](ModalWindow& dialog)
            {
                dialog.type(FontEditor::name, L"Arial");
                dialog.type(FontEditor::file, L"a.ttf");
                leave(dialog);
            });
        view().runNodeCommand(node, addCommand);
    };
    cancelWith([](ModalWindow& dialog) { dialog.press(IDCANCEL); });
    cancelWith([](ModalWindow& dialog) { dialog.key(VK_ESCAPE); });
    cancelWith([](ModalWindow& dialog) { dialog.close(); });
    EXPECT_FALSE(fileExists());
    EXPECT_TRUE(recorder.calls(L"IConsole::UpdateAllViews").empty());
    EXPECT_TRUE(recorder.calls(L"IConsole::SelectScopeItem").empty());
}

TEST_F(FontsAdd, neitherReadsNorWritesTheRestartPreferenceAndNeverRestarts)
{
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            dialog.type(FontEditor::name, L"Arial");
            dialog.type(FontEditor::file, L"a.ttf");
            dialog.setChecked(FontEditor::restart, true);
            dialog.press(IDOK);
        });
    // Without a service a restart would show two boxes.
    view().runNodeCommand(node, addCommand);
    EXPECT_EQ(std::nullopt, Registry::restartPreference());
    EXPECT_EQ(L"a.ttf", stored(L"MapFont:ARIAL"));
}

TEST_F(FontsAdd, selectsTheNodeAndThenTellsEveryView)
{
    openNode();
    view().select(L"Log");
    recorder.forgetCalls();
    add({.family = L"Arial", .file = L"a.ttf"});
    EXPECT_EQ(node, view().selected()) << "the command was run on a node that was not selected";
    ASSERT_EQ(1u, recorder.calls(L"IConsole::SelectScopeItem").size());
    EXPECT_EQ(S_OK, recorder.calls(L"IConsole::SelectScopeItem").front().result);
    const auto updates = recorder.calls(L"IConsole::UpdateAllViews");
    ASSERT_FALSE(updates.empty());
    EXPECT_NE(std::wstring::npos, updates.front().call.arguments.find(L"hint=0"))
        << narrow(updates.front().call.arguments);
    EXPECT_EQ(L"a.ttf", view().cell(L"ARIAL", L"Font File Path"));
}

TEST_F(FontsAdd, keepsWhatOthersWroteWhileTheEditorWasOpen)
{
    store({{L"MapFont:A", L"1"}});
    openNode();
    editor(
        [](ModalWindow& dialog)
        {
            store({{L"MapFont:A", L"changed"}, {L"MapAlias:X", L"A"}, {L"MapFont:B", L"2"}});
            dialog.type(FontEditor::name, L"c");
            dialog.type(FontEditor::file, L"3");
            dialog.press(IDOK);
        });
    view().runNodeCommand(node, addCommand);
    const Entries entries{
        {L"MapFont:A", L"changed"}, {L"MapAlias:X", L"A"}, {L"MapFont:B", L"2"}, {L"MapFont:C", L"3"}};
    EXPECT_EQ(entries, stored());
    EXPECT_EQ(3, view().view().rowCount());
}

} // namespace
} // namespace Acceptance
