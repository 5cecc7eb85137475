#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/EditEnumPropertyDlg.h"

namespace
{

using Acceptance::ModalWindow;
using TMgmt::EditEnumPropertyDlg;
using TMgmt::PropertyOptions;

constexpr wchar_t caption[] = L"Edit Property";
constexpr int buttons[] = {207, 208, 209, 210};

class EditEnumPropertyDlgTest : public DialogTestBase
{
  protected:
    static EditEnumPropertyDlg dialogFor(PropertyOptions options, const wchar_t* value)
    {
        return EditEnumPropertyDlg(std::move(options), L"Name", value, L"Description", true);
    }

    static std::vector<int> checkedOf(const ModalWindow& window)
    {
        std::vector<int> checked;
        for (const int button : buttons)
        {
            if (window.checked(button))
            {
                checked.push_back(button);
            }
        }
        return checked;
    }
};

using Buttons = std::vector<int>;

TEST_F(EditEnumPropertyDlgTest, hasTheseControls)
{
    auto dialog = dialogFor({{L"a", L"A"}, {L"b", L"B"}, {L"c", L"C"}, {L"d", L"D"}}, L"a");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(Acceptance::contentsOf(window.handle()),
                                 (std::vector<std::wstring>{
                                     L"-1 Static Property &Name:",
                                     L"202 Edit Name",
                                     L"-1 Static &Value:",
                                     L"207 Button A",
                                     L"208 Button B",
                                     L"209 Button C",
                                     L"210 Button D",
                                     L"-1 Static &Description:",
                                     L"204 Edit Description",
                                     L"273 Button Restart the service to apply changes.",
                                     L"206 Button Re&set to default",
                                     L"1 Button OK",
                                     L"2 Button Cancel",
                                 }));
                       window.press(IDCANCEL);
                   });
    dialog.show(frame());
}

TEST_F(EditEnumPropertyDlgTest, offersTheFirstFourOptionsOnly)
{
    auto dialog = dialogFor({{L"a", L"A"}, {L"b", L"B"}, {L"c", L"C"}, {L"d", L"D"}, {L"e", L"E"}}, L"e");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       const wchar_t* const labels[] = {L"A", L"B", L"C", L"D"};
                       for (int i = 0; i < 4; ++i)
                       {
                           EXPECT_EQ(window.text(buttons[i]), labels[i]);
                           EXPECT_TRUE(window.visible(buttons[i]));
                       }
                       EXPECT_EQ(checkedOf(window), Buttons{});
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"e");
}

TEST_F(EditEnumPropertyDlgTest, hidesTheButtonsWithoutAnOption)
{
    auto dialog = dialogFor({{L"a", L"A"}, {L"b", L"B"}}, L"a");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_TRUE(window.visible(207));
                       EXPECT_TRUE(window.visible(208));
                       EXPECT_FALSE(window.visible(209));
                       EXPECT_FALSE(window.visible(210));
                       EXPECT_EQ(checkedOf(window), Buttons{207});
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

// Proves: the last button gets the focus whether it is visible or not.
TEST_F(EditEnumPropertyDlgTest, putsTheFocusOnTheLastButtonEvenWhenItIsHidden)
{
    for (const PropertyOptions& options : {PropertyOptions{{L"a", L"A"}, {L"b", L"B"}, {L"c", L"C"}},
                                           PropertyOptions{{L"a", L"A"}, {L"b", L"B"}, {L"c", L"C"}, {L"d", L"D"}}})
    {
        auto dialog = dialogFor(options, L"b");
        robot().dialog(caption,
                       [](ModalWindow& window)
                       {
                           EXPECT_EQ(window.focus(), 210);
                           EXPECT_EQ(checkedOf(window), Buttons{208});
                           window.press(IDCANCEL);
                       });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    }
}

TEST_F(EditEnumPropertyDlgTest, checksTheFirstOfTwoOptionsWithTheSameValue)
{
    auto dialog = dialogFor({{L"a", L"A"}, {L"b", L"B"}, {L"b", L"B again"}}, L"b");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(checkedOf(window), Buttons{208});
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditEnumPropertyDlgTest, checksNothingForAValueInOtherLettersAndKeepsIt)
{
    auto dialog = dialogFor({{L"TTF", L"TTF"}, {L"RASTER", L"AFP Raster"}}, L"ttf");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(checkedOf(window), Buttons{});
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"ttf");
}

TEST_F(EditEnumPropertyDlgTest, givesTheChosenOptionsValueAndNeverItsLabel)
{
    auto dialog = dialogFor({{L"TTF", L"TTF"}, {L"RASTER", L"AFP Raster"}}, L"TTF");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.setChecked(208, true);
                       window.press(IDOK);
                   });
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"RASTER");
}

TEST_F(EditEnumPropertyDlgTest, resets)
{
    auto dialog = dialogFor({{L"TTF", L"TTF"}}, L"TTF");
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.setChecked(IDC_RESTART_SERVICE, false);
                       window.press(IDC_PROPERTY_RESET);
                   });
    EXPECT_EQ(dialog.show(frame()), 206);
    EXPECT_FALSE(dialog.restart);
}

} // namespace
