// What a window keeps for the next run, as it was when it was closed.
#include "WindowTest.h"

#include "Settings.h"
#include "WindowPlacement.h"

using namespace Console;

class WindowMemory : public WindowTest
{
  protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_before = Settings().text(name);
        Settings().setText(name, {});
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        Settings().setText(name, m_before.value_or(L""));
    }

    // A window of the user's first run, shown so one after another and closed.
    void closeAfter(const std::vector<int>& shown)
    {
        MainWindow& window = windows->open({});
        window.show(SW_SHOWNORMAL);
        for (const int command : shown)
        {
            ShowWindow(window.handle(), command);
            settle();
        }
        m_normal = normalPlace(window.handle());
        PostMessageW(window.handle(), WM_CLOSE, 0, 0);
        settle();
    }

    static WindowPlacement next() { return startPlacement(true, std::nullopt, 96); }
    static RECT normalPlace(HWND window)
    {
        WINDOWPLACEMENT placement{};
        placement.length = sizeof placement;
        GetWindowPlacement(window, &placement);
        return placement.rcNormalPosition;
    }

    RECT m_normal{};

  private:
    static constexpr wchar_t name[] = L"Window";
    std::optional<std::wstring> m_before;
};

TEST_F(WindowMemory, KeepsTheOrdinaryPlaceOfAMaximizedWindow)
{
    closeAfter({SW_SHOWMAXIMIZED});
    const WindowPlacement placement = next();
    EXPECT_TRUE(placement.maximized);
    EXPECT_TRUE(EqualRect(&placement.normal, &m_normal));
}

TEST_F(WindowMemory, AMinimizedWindowComesBackAsItWasBefore)
{
    closeAfter({SW_SHOWMINIMIZED});
    const WindowPlacement placement = next();
    EXPECT_FALSE(placement.maximized);
    EXPECT_TRUE(EqualRect(&placement.normal, &m_normal)) << "not where minimised windows are";

    closeAfter({SW_SHOWMAXIMIZED, SW_SHOWMINIMIZED});
    EXPECT_TRUE(next().maximized);
}
