#pragma once

#include "kit/Frame.h"
#include "kit/Robot.h"

#include <gtest/gtest.h>

// A test of one dialog, owned by a frame, used by the robot.
class DialogTestBase : public testing::Test
{
  protected:
    HWND frame() const { return m_frame.handle(); }
    Acceptance::Robot& robot() { return m_robot; }
    void TearDown() override { m_robot.finish(); }

    static Acceptance::MessageBoxSeen complaint(const wchar_t* text, UINT icon)
    {
        return {.text = text,
                .caption = L"Validation Error",
                .icon = icon,
                .owner = Acceptance::Owner::dialog,
                .buttons = {IDOK},
                .answer = IDOK};
    }

  private:
    Acceptance::Frame m_frame;
    Acceptance::Robot m_robot{m_frame.handle()};
};
