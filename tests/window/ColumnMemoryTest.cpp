#include "ColumnMemory.h"

#include "WindowTest.h"

#include <commctrl.h>

using namespace Console;

class ColumnMemory : public WindowTest
{
  protected:
    void TearDown() override
    {
        WindowTest::TearDown();
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Brimlow\\TConsole");
    }

    void openRemembering()
    {
        MainWindow::Options options;
        options.size = SIZE{900, 600};
        MainWindow& window = windows->open(options);
        m_list = window.controller().results().list().control();
        m_columnSet = [&window] { return window.controller().view().columnSet(); };
        window.show(SW_SHOWNORMAL);
        window.controller().selectNode(root());
        window.controller().selectNode(child(0));
        settle();
    }

    // Makes a column wider, as with the mouse.
    void dragDivider(int column, int by)
    {
        const HWND header = ListView_GetHeader(m_list);
        RECT place{};
        Header_GetItemRect(header, column, &place);
        const LPARAM from = MAKELPARAM(place.right - 1, place.top + 5);
        const LPARAM to = MAKELPARAM(place.right - 1 + by, place.top + 5);
        SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, from);
        SendMessageW(header, WM_MOUSEMOVE, MK_LBUTTON, to);
        SendMessageW(header, WM_LBUTTONUP, 0, to);
        settle();
    }

    HWND m_list = nullptr;
    std::function<std::wstring()> m_columnSet;
};

TEST_F(ColumnMemory, GivesBackTheUsersWidths)
{
    openRemembering();
    dragDivider(1, 53);
    const auto widths = rememberedWidths(m_columnSet(), 3);
    ASSERT_TRUE(widths) << testing::PrintToString(m_columnSet());
    EXPECT_EQ(widths->at(1), 133);

    windows = std::make_unique<ConsoleWindows>(*host);
    openRemembering();
    EXPECT_EQ(ListView_GetColumnWidth(m_list, 0), 180);
    EXPECT_EQ(ListView_GetColumnWidth(m_list, 1), 133);
}

TEST_F(ColumnMemory, IgnoresWhatDoesNotFit)
{
    rememberWidths(L"set", {10, 20});

    EXPECT_EQ(rememberedWidths(L"set", 2), (std::vector<int>{10, 20}));
    EXPECT_EQ(rememberedWidths(L"set", 3), std::nullopt);
    EXPECT_EQ(rememberedWidths(L"other", 2), std::nullopt);
    rememberWidths(L"set", {10, -20});
    EXPECT_EQ(rememberedWidths(L"set", 2), std::nullopt);
    rememberWidths(L"set", {10, 20000});
    EXPECT_EQ(rememberedWidths(L"set", 2), std::nullopt);
    EXPECT_EQ(rememberedWidths(L"set", 1), std::nullopt) << "the number that is too large counts, too";
}

TEST_F(ColumnMemory, IgnoresAValueWithoutAnyByte)
{
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Brimlow\\TConsole\\Columns", L"set", REG_SZ, nullptr, 0);
    EXPECT_EQ(rememberedWidths(L"set", 2), std::nullopt);
}
