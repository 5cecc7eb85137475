#include "fonts_logs/FontsTest.h"

namespace Acceptance
{
namespace
{

// Two views that list the fonts.
class FontsInTwoViews : public FontsTest
{
  protected:
    void SetUp() override
    {
        FontsTest::SetUp();
        Registry::preferRestart(false);
        store({{L"MapFont:A", L"1"}, {L"MapFont:B", L"2"}});
        openNode(2);
    }

    void expectInBoth(const std::vector<Cells>& rows)
    {
        EXPECT_EQ(rows, view(0).rows());
        EXPECT_EQ(rows, view(1).rows());
    }

    const Cells a{L"A", L"1", L"No", L"No"};
    const Cells b{L"B", L"2", L"No", L"No"};
};

TEST_F(FontsInTwoViews, bothShowANewFont)
{
    add({.family = L"c", .file = L"3"});
    expectInBoth({a, b, {L"C", L"3", L"No", L"No"}});
}

TEST_F(FontsInTwoViews, bothShowAnEditedFont)
{
    edit(L"A", {.family = L"A", .file = L"3", .bold = true});
    expectInBoth({b, {L"A", L"3", L"Yes", L"No"}});
    enter({.family = L"B", .file = L"4"});
    view(1).doubleClick(L"B");
    expectInBoth({{L"A", L"3", L"Yes", L"No"}, {L"B", L"4", L"No", L"No"}});
}

TEST_F(FontsInTwoViews, bothLoseADeletedFont)
{
    view(1).pressDelete(L"A");
    expectInBoth({b});
    view(0).pressDelete(L"B");
    expectInBoth({});
}

TEST_F(FontsInTwoViews, theOneThatShowsAnotherNodeIsLeftAlone)
{
    view(1).select(L"Engine Settings\\AFP Encoder");
    const auto before = view(1).rows();
    view(1).takeRedrawnRows();
    edit(L"B", {.family = L"C", .file = L"3"});
    view(0).pressDelete(L"A");
    EXPECT_TRUE(view(1).takeRedrawnRows().empty());
    EXPECT_EQ(before, view(1).rows());
}

TEST_F(FontsInTwoViews, aRowIsEditedThatTheOtherViewHasReadAnew)
{
    editor(
        [this](ModalWindow& dialog)
        {
            view(1).select(L"Log");
            view(1).select(node);
            dialog.type(FontEditor::file, L"mine");
            dialog.press(IDOK);
        });
    view(0).doubleClick(L"A");
    expectInBoth({b, {L"A", L"mine", L"No", L"No"}});
}

TEST_F(FontsInTwoViews, bothSeeAtOnceWhatTheOtherFoundInTheFile)
{
    store({{L"MapFont:X", L"9"}});
    view(1).select(L"Log");
    view(1).select(node);
    expectInBoth({{L"X", L"9", L"No", L"No"}});
}

} // namespace
} // namespace Acceptance
