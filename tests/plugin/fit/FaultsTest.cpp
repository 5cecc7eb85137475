// The checks themselves find what they are for: a dialog with one fault at a time.
#include "fit/faults.h"

#include "kit/Frame.h"

#include <gtest/gtest.h>

namespace
{

using Fit::Controls;
using Fit::Faults;

constexpr DWORD tabStop = WS_TABSTOP;
constexpr DWORD label = SS_LEFT;

class FaultsTest : public testing::Test
{
  protected:
    HWND dialog() const { return m_frame.handle(); }
    Controls controls() const { return Fit::controlsOf(dialog()); }

    // A visible control in pixels, in tab order.
    void add(const wchar_t* type, const wchar_t* text, int id, RECT place, DWORD style = tabStop) const
    {
        CreateWindowW(type, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.right - place.left,
                      place.bottom - place.top, dialog(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                      nullptr);
    }

  private:
    Acceptance::Frame m_frame;
};

TEST_F(FaultsTest, namesOfFieldsAreThoseOfTheLabelsBeforeThem)
{
    add(L"Static", L"&Name:", 1, {10, 10, 60, 30}, label);
    add(L"Edit", L"content", 2, {70, 10, 100, 30});
    EXPECT_EQ(Fit::faultsOfNames(controls()), Faults());
    add(L"Edit", L"content", 3, {70, 40, 100, 60});
    EXPECT_EQ(Fit::faultsOfNames(controls()), (Faults{L"no name: 3 \"content\""}));
}

TEST_F(FaultsTest, twoButtonsOfOneNameAreAlike)
{
    add(L"Button", L"&Browse", 1, {10, 10, 60, 30});
    add(L"Button", L"B&rowse", 2, {10, 40, 60, 60});
    EXPECT_EQ(Fit::faultsOfNames(controls()), (Faults{L"alike \"Browse\": 1 2"}));
}

TEST_F(FaultsTest, controlsComeInTheOrderOfTheEye)
{
    add(L"Button", L"Cancel", 2, {70, 10, 120, 30});
    add(L"Button", L"OK", 1, {10, 10, 60, 30});
    EXPECT_EQ(Fit::faultsOfOrder(dialog(), controls()), (Faults{L"2 \"Cancel\" comes before 1 \"OK\""}));
}

TEST_F(FaultsTest, columnsComeOneAfterTheOther)
{
    add(L"Button", L"a", 1, {10, 10, 60, 30});
    add(L"Button", L"b", 2, {10, 40, 60, 60});
    add(L"Button", L"c", 3, {70, 10, 120, 30});
    EXPECT_EQ(Fit::faultsOfOrder(dialog(), controls()), Faults());
    add(L"Button", L"d", 4, {70, -20, 120, 0});
    EXPECT_EQ(Fit::faultsOfOrder(dialog(), controls()), (Faults{L"3 \"c\" comes before 4 \"d\""}));
}

TEST_F(FaultsTest, everyControlIsReachedWithTheKeyboard)
{
    add(L"Button", L"OK", 1, {10, 10, 60, 30});
    add(L"Button", L"Lost", 2, {70, 10, 120, 30}, 0);
    EXPECT_EQ(Fit::faultsOfOrder(dialog(), controls()), (Faults{L"not reached: 2 \"Lost\""}));
}

TEST_F(FaultsTest, aGroupOfRadioButtonsEndsWithThem)
{
    add(L"Button", L"One", 1, {10, 10, 60, 30}, BS_AUTORADIOBUTTON | WS_GROUP | tabStop);
    add(L"Button", L"Two", 2, {10, 40, 60, 60}, BS_AUTORADIOBUTTON);
    add(L"Button", L"OK", 3, {10, 70, 60, 90}, tabStop);
    EXPECT_EQ(Fit::faultsOfOrder(dialog(), controls()), (Faults{L"its group goes on with no radio button: 2 \"Two\""}));
}

TEST_F(FaultsTest, aLetterIsUnderlinedOnce)
{
    add(L"Button", L"&Save", 1, {10, 10, 60, 30});
    add(L"Button", L"This && that", 2, {10, 40, 60, 60});
    EXPECT_EQ(Fit::faultsOfMnemonics(controls()), Faults());
    add(L"Button", L"Clo&se", 3, {10, 70, 60, 90});
    EXPECT_EQ(Fit::faultsOfMnemonics(controls()), (Faults{L"S: 1 \"&Save\" 3 \"Clo&se\""}));
}

TEST_F(FaultsTest, aLabelLeadsToItsNeighbour)
{
    add(L"Static", L"&Name:", 1, {10, 10, 60, 30}, label);
    add(L"Edit", L"", 2, {200, 100, 300, 130});
    EXPECT_EQ(Fit::faultsOfMnemonics(controls()), (Faults{L"leads elsewhere: 1 \"&Name:\""}));
}

TEST_F(FaultsTest, textsHaveRoom)
{
    add(L"Button", L"Browse", 1, {10, 10, 200, 40});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), Faults());
    add(L"Button", L"Browse", 2, {10, 50, 30, 80});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), (Faults{L"cut: 2 \"Browse\"", L"cut: 2 \"BrowseBr\""}));
}

TEST_F(FaultsTest, controlsKeepToThemselves)
{
    add(L"Button", L"OK", 1, {10, 10, 110, 40});
    add(L"Button", L"No", 2, {100, 10, 200, 40});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), (Faults{L"1 \"OK\" is over 2 \"No\""}));
}

TEST_F(FaultsTest, aGroupHoldsItsControls)
{
    add(L"Button", L"Group", 1, {10, 10, 210, 110}, BS_GROUPBOX);
    add(L"Button", L"OK", 2, {20, 40, 110, 70});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), Faults());
    add(L"Button", L"No", 3, {120, 80, 230, 105});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), (Faults{L"1 \"Group\" is over 3 \"No\""}));
}

TEST_F(FaultsTest, nothingIsOutside)
{
    add(L"Button", L"OK", 1, {-5, 10, 100, 40});
    EXPECT_EQ(Fit::faultsOfRoom(dialog(), controls(), 0), (Faults{L"beyond the margin: 1 \"OK\""}));
}

} // namespace
