#pragma once

#include "host/HostTest.h"

#include "ConsoleWindows.h"

#include "console/host/Host.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A console window with the foreign snap-in, driven by messages as a user's keys and clicks cause them.
class WindowTest : public testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    // Opens the window with a node selected: the snap-in's static node, or one of its children. To be called once.
    void open(int child = -1);

    Console::MainWindow& window() const { return *m_window; }
    Console::ViewController& controller() const { return m_window->controller(); }
    Console::View& view() const { return controller().view(); }
    HWND tree() const { return controller().tree().control(); }
    HWND list() const { return controller().results().list().control(); }
    Console::NodeId root() const { return snapIn->root(); }
    Console::NodeId child(int index) const;

    // Serves messages as the program does until nothing waits any more.
    void settle();
    // Until the condition holds; false when it does not within ten seconds.
    bool serveUntil(const std::function<bool()>& condition);
    // A key for the control that would have the focus; modifiers: VK_CONTROL, VK_SHIFT, VK_MENU. next: a message that
    // the window gets right afterwards, also when the key made it run a loop of its own.
    void press(HWND control, WORD key, const std::vector<int>& modifiers = {}, UINT next = WM_NULL);
    // Selects a row as the arrow keys do.
    void selectRow(int row);
    // What the snap-in was notified of, from the component's side: "MMCN_REFRESH".
    int notified(const std::wstring& event) const;
    static std::wstring textOf(HWND window);

    Foreign::Settings& settings = *foreignSnapInSettings();
    Recorder recorder;
    std::unique_ptr<Console::Host> host;
    Console::SnapIn* snapIn = nullptr;
    std::unique_ptr<Console::ConsoleWindows> windows;

  private:
    Console::MainWindow* m_window = nullptr;
};
