#include "kit/Robot.h"
#include "kit/Frame.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace Acceptance
{
namespace
{

// The robot must not let anything pass that is not in its script: every other test relies on it.
class RobotTest : public testing::Test
{
  protected:
    // How many failures the function causes; they do not count as this test's own.
    template <class Function>
    static int failuresOf(Function&& function)
    {
        testing::TestPartResultArray results;
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        function();
        int failures = 0;
        for (int i = 0; i < results.size(); ++i)
        {
            failures += results.GetTestPartResult(i).failed() ? 1 : 0;
        }
        return failures;
    }

    int showBox() const { return MessageBoxW(m_frame.handle(), L"Text", L"Caption", MB_OKCANCEL | MB_ICONQUESTION); }

    int failuresWith(const MessageBoxSeen& expected)
    {
        return failuresOf(
            [&]
            {
                robot.message(expected);
                showBox();
            });
    }

  private:
    Frame m_frame;

  protected:
    Robot robot{m_frame.handle()};
    const MessageBoxSeen box{.text = L"Text",
                             .caption = L"Caption",
                             .icon = MB_ICONQUESTION,
                             .owner = Owner::frame,
                             .buttons = {IDOK, IDCANCEL},
                             .answer = IDCANCEL};
};

TEST_F(RobotTest, answersTheBoxThatItExpects)
{
    robot.message(box);
    EXPECT_EQ(IDCANCEL, showBox());
    EXPECT_EQ(0u, robot.stepsLeft());
}

TEST_F(RobotTest, comparesABoxAsAWhole)
{
    const auto differing = [this](auto change)
    {
        MessageBoxSeen other = box;
        change(other);
        return failuresWith(other);
    };
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.text = L"Text."; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.caption = L"caption"; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.icon = MB_ICONERROR; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.icon = 0; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.owner = Owner::none; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.owner = Owner::dialog; }));
    EXPECT_EQ(1, differing([](MessageBoxSeen& other) { other.buttons = {IDOK}; }));
}

TEST_F(RobotTest, knowsEveryIcon)
{
    for (const UINT icon : {MB_ICONERROR, MB_ICONEXCLAMATION, MB_ICONINFORMATION, MB_ICONQUESTION, 0L})
    {
        robot.message({.text = L"Text", .caption = L"Caption", .icon = icon});
        MessageBoxW(nullptr, L"Text", L"Caption", MB_OK | icon);
    }
}

TEST_F(RobotTest, closesAWindowThatNobodyExpects)
{
    EXPECT_EQ(1, failuresOf([this] { showBox(); }));
}

TEST_F(RobotTest, missesAWindowThatDoesNotCome)
{
    EXPECT_EQ(1, failuresOf(
                     [this]
                     {
                         robot.message(box);
                         robot.finish();
                     }));
    EXPECT_EQ(0u, robot.stepsLeft());
}

TEST_F(RobotTest, takesNoBoxForADialogOfAnotherCaption)
{
    EXPECT_EQ(1, failuresOf(
                     [this]
                     {
                         robot.dialog(L"Other", [](ModalWindow& window) { window.press(IDOK); });
                         showBox();
                     }));
}

TEST_F(RobotTest, endsAnActionThatLeadsNowhere)
{
    EXPECT_EQ(1, failuresOf(
                     [this]
                     {
                         robot.dialog(L"Caption", [](ModalWindow&) {});
                         showBox();
                     }));
}

TEST_F(RobotTest, seesTheWindowAgainThatABoxCovered)
{
    // The outer box is asked again after the inner one, which it opened, has gone.
    robot.dialog(L"Caption",
                 [this](ModalWindow& outer)
                 {
                     robot.messageThat([](const MessageBoxSeen& inner) { EXPECT_EQ(Owner::dialog, inner.owner); });
                     robot.dialog(L"Caption", [](ModalWindow& again) { again.press(IDOK); });
                     MessageBoxW(outer.handle(), L"Inner", L"Inner", MB_OK);
                     outer.post(outer.handle(), WM_NULL, 0, 0);
                 });
    EXPECT_EQ(IDOK, showBox());
    EXPECT_EQ(0u, robot.stepsLeft());
}

} // namespace
} // namespace Acceptance
