#include "WindowTest.h"

#include <commctrl.h>

#include <array>

using namespace Console;

void WindowTest::SetUp()
{
    settings = Foreign::Settings();
    host = std::make_unique<Host>(HostOptions{Strictness::tolerant, &recorder});
    snapIn = &host->addSnapIn(Foreign::snapInClass);
    windows = std::make_unique<ConsoleWindows>(*host);
}

void WindowTest::TearDown()
{
    windows.reset();
    host.reset();
    EXPECT_EQ(settings.liveObjects, 0) << "the window kept something of the snap-in";
}

void WindowTest::open(int index)
{
    MainWindow::Options options;
    options.size = SIZE{900, 600};
    options.remember = false;
    m_window = &windows->open(options);
    m_window->show(SW_SHOWNORMAL);
    controller().selectNode(root());
    if (index >= 0)
    {
        controller().selectNode(child(index));
    }
    settle();
    recorder.clear();
}

NodeId WindowTest::child(int index) const
{
    return host->tree().children(root())[static_cast<std::size_t>(index)];
}

void WindowTest::settle()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        windows->serve(message);
    }
}

bool WindowTest::serveUntil(const std::function<bool()>& condition)
{
    const ULONGLONG deadline = GetTickCount64() + 10'000;
    while (!condition())
    {
        if (GetTickCount64() > deadline)
        {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        settle();
    }
    return true;
}

void WindowTest::press(HWND control, WORD key, const std::vector<int>& modifiers, UINT next)
{
    std::array<BYTE, 256> before{};
    GetKeyboardState(before.data());
    std::array<BYTE, 256> held = before;
    bool alt = false;
    for (const int modifier : modifiers)
    {
        held[static_cast<std::size_t>(modifier)] = 0x80;
        alt = alt || modifier == VK_MENU;
    }
    SetKeyboardState(held.data());
    // Bit 29: Alt is down.
    const LPARAM context = alt ? 0x20000001 : 1;
    PostMessageW(control, alt || key == VK_F10 ? WM_SYSKEYDOWN : WM_KEYDOWN, key, context);
    PostMessageW(window().handle(), next, 0, 0);
    settle();
    SetKeyboardState(before.data());
}

void WindowTest::selectRow(int row)
{
    SetFocus(list());
    ListView_SetItemState(list(), -1, 0, LVIS_SELECTED);
    ListView_SetItemState(list(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    settle();
}

int WindowTest::notified(const std::wstring& event) const
{
    int found = 0;
    for (const Call& call : recorder.calls)
    {
        const bool notify = call.direction == Direction::toSnapIn && call.method.ends_with(L"::Notify");
        found += notify && call.arguments.find(L"event=" + event + L",") != std::wstring::npos ? 1 : 0;
    }
    return found;
}

std::wstring WindowTest::textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}
