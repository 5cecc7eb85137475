#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/EditPropertyDlg.h"

namespace
{

using Acceptance::ModalWindow;
using TMgmt::EditPropertyDlg;
using TMgmt::PropertyKind;

constexpr wchar_t caption[] = L"Edit Property";

class EditPropertyDlgTest : public DialogTestBase
{
  protected:
    static EditPropertyDlg dialogFor(PropertyKind kind, const wchar_t* value, bool restart = true)
    {
        return EditPropertyDlg(kind, L"Name", value, L"Description", restart);
    }

    // Types the text and presses OK.
    void enter(const wchar_t* text)
    {
        robot().dialog(caption,
                       [text](ModalWindow& window)
                       {
                           window.type(IDC_PROPERTY_VALUE, text);
                           window.press(IDOK);
                       });
    }

    void cancelAfter(const std::function<void(ModalWindow&)>& look)
    {
        robot().dialog(caption,
                       [look](ModalWindow& window)
                       {
                           look(window);
                           window.press(IDCANCEL);
                       });
    }
};

TEST_F(EditPropertyDlgTest, hasTheseControls)
{
    auto dialog = dialogFor(PropertyKind::text, L"some value");
    cancelAfter(
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                   L"-1 Static Property &Name:",
                                                                   L"202 Edit Name",
                                                                   L"-1 Static &Value:",
                                                                   L"203 Edit some value",
                                                                   L"205 Static ",
                                                                   L"-1 Static &Description:",
                                                                   L"204 Edit Description",
                                                                   L"273 Button Restart the service to apply changes.",
                                                                   L"206 Button Re&set to default",
                                                                   L"1 Button OK",
                                                                   L"2 Button Cancel",
                                                               }));
        });
    dialog.show(frame());
}

TEST_F(EditPropertyDlgTest, opensWithNameValueDescriptionCheckBoxAndFocusOnTheValue)
{
    auto dialog = dialogFor(PropertyKind::text, L"some value", false);
    cancelAfter(
        [](ModalWindow& window)
        {
            EXPECT_EQ(window.text(IDC_PROPERTY_NAME), L"Name");
            EXPECT_TRUE(window.readOnly(IDC_PROPERTY_NAME));
            EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"some value");
            EXPECT_EQ(window.text(IDC_PROPERTY_DESCRIPTION), L"Description");
            EXPECT_TRUE(window.readOnly(IDC_PROPERTY_DESCRIPTION));
            EXPECT_FALSE(window.checked(IDC_RESTART_SERVICE));
            EXPECT_EQ(window.text(IDC_RESTART_SERVICE), L"Restart the service to apply changes.");
            EXPECT_EQ(window.text(IDC_PROPERTY_RESET), L"Re&set to default");
            EXPECT_EQ(window.focus(), IDC_PROPERTY_VALUE);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditPropertyDlgTest, selectsTheValueSoThatTypingReplacesIt)
{
    auto dialog = dialogFor(PropertyKind::text, L"some value");
    cancelAfter(
        [](ModalWindow& window)
        {
            DWORD first = 0;
            DWORD last = 0;
            SendMessageW(window.control(IDC_PROPERTY_VALUE), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                         reinterpret_cast<LPARAM>(&last));
            EXPECT_EQ(first, 0U);
            EXPECT_EQ(last, 10U);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditPropertyDlgTest, showsTheUnitOfTheKindAndNeverTheTextOfTheResource)
{
    const std::pair<PropertyKind, const wchar_t*> cases[] = {
        {PropertyKind::points, L"Pt"}, {PropertyKind::percentage, L"%"}, {PropertyKind::boolean, L""},
        {PropertyKind::integer, L""},  {PropertyKind::text, L""},        {PropertyKind::tcpPort, L""},
        {PropertyKind{0}, L""},        {PropertyKind{5}, L""},
    };
    for (const auto& [kind, unit] : cases)
    {
        auto dialog = dialogFor(kind, L"1");
        cancelAfter([&](ModalWindow& window) { EXPECT_EQ(window.text(IDC_PROPERTY_UNIT), unit); });
        EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    }
}

// Proves: only the beginning of a number has to be one, and the text is stored as typed.
TEST_F(EditPropertyDlgTest, keepsARealNumberAsTyped)
{
    auto dialog = dialogFor(PropertyKind::points, L"10");
    enter(L"12pt");
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"12pt");
}

// Proves: a number or boolean that is refused is an error and the field gets its former text back, a port is a
// warning and the typed text stays.
TEST_F(EditPropertyDlgTest, complainsAboutWhatIsNoNumberAndGivesTheFormerTextAndTheFocusBack)
{
    auto dialog = dialogFor(PropertyKind::percentage, L"10");
    enter(L"abc");
    robot().message(complaint(L"Please enter a valid floating point number.", MB_ICONERROR));
    cancelAfter(
        [](ModalWindow& window)
        {
            EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"10");
            EXPECT_EQ(window.focus(), IDC_PROPERTY_VALUE);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

// Proves: a second refusal in a row gives back the text of the first.
TEST_F(EditPropertyDlgTest, givesTheTextOfTheFirstRefusalBackAfterASecondOne)
{
    auto dialog = dialogFor(PropertyKind::points, L"10");
    enter(L"1000.5");
    robot().message(complaint(L"Please enter a floating point number between 0 and 1000.", MB_ICONERROR));
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"10");
                       window.type(IDC_PROPERTY_VALUE, L"-0.1");
                       window.press(IDOK);
                   });
    robot().message(complaint(L"Please enter a floating point number between 0 and 1000.", MB_ICONERROR));
    cancelAfter([](ModalWindow& window) { EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"1000.5"); });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditPropertyDlgTest, takesTrueInCapitalsForABoolean)
{
    auto dialog = dialogFor(PropertyKind::boolean, L"false");
    enter(L"TRUE");
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"true");
}

TEST_F(EditPropertyDlgTest, complainsAboutABooleanThatIsNeitherTrueNorFalse)
{
    auto dialog = dialogFor(PropertyKind::boolean, L"false");
    enter(L"yes");
    robot().message(complaint(L"Please enter either true or false.", MB_ICONERROR));
    cancelAfter(
        [](ModalWindow& window)
        {
            EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"false");
            EXPECT_EQ(window.focus(), IDC_PROPERTY_VALUE);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditPropertyDlgTest, turnsAnythingIntoAnIntegerWithoutAMessage)
{
    auto dialog = dialogFor(PropertyKind::integer, L"50");
    enter(L"abc");
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"0");
}

// Proves: a number or boolean that is refused is an error and the field gets its former text back, a port is a
// warning and the typed text stays.
TEST_F(EditPropertyDlgTest, complainsAboutPortsWithAWarningAndKeepsTheTypedText)
{
    auto dialog = dialogFor(PropertyKind::tcpPort, L"1099");
    enter(L"10 99");
    robot().message(complaint(L"Please enter a valid port number.", MB_ICONEXCLAMATION));
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"10 99");
                       window.type(IDC_PROPERTY_VALUE, L"999");
                       window.press(IDOK);
                   });
    robot().message(complaint(L"Please enter a port number between 1000 and 65535.", MB_ICONEXCLAMATION));
    cancelAfter([](ModalWindow& window) { EXPECT_EQ(window.text(IDC_PROPERTY_VALUE), L"999"); });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

TEST_F(EditPropertyDlgTest, storesAnyTextOfTheOtherKindsEvenAnEmptyOne)
{
    auto dialog = dialogFor(PropertyKind{5}, L"value");
    enter(L"");
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.value, L"");
}

TEST_F(EditPropertyDlgTest, resetsWithoutLookingAtTheField)
{
    auto dialog = dialogFor(PropertyKind::tcpPort, L"1099", true);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.type(IDC_PROPERTY_VALUE, L"not a port");
                       window.setChecked(IDC_RESTART_SERVICE, false);
                       window.press(IDC_PROPERTY_RESET);
                   });
    EXPECT_EQ(dialog.show(frame()), 206);
    EXPECT_FALSE(dialog.restart);
}

TEST_F(EditPropertyDlgTest, takesTheCheckBoxOnOkButNotOnCancel)
{
    auto accepted = dialogFor(PropertyKind::text, L"x", false);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.setChecked(IDC_RESTART_SERVICE, true);
                       window.press(IDOK);
                   });
    EXPECT_EQ(accepted.show(frame()), IDOK);
    EXPECT_TRUE(accepted.restart);

    auto cancelled = dialogFor(PropertyKind::text, L"x", false);
    robot().dialog(caption,
                   [](ModalWindow& window)
                   {
                       window.setChecked(IDC_RESTART_SERVICE, true);
                       window.press(IDCANCEL);
                   });
    EXPECT_EQ(cancelled.show(frame()), IDCANCEL);
    EXPECT_FALSE(cancelled.restart);
}

} // namespace
