#pragma once

#include "MainWindow.h"

#include <memory>
#include <vector>

namespace Console
{

// All console windows of the program, and the loop that serves them.
class ConsoleWindows
{
  public:
    explicit ConsoleWindows(Host& host) : m_host(host) {}
    ConsoleWindows(const ConsoleWindows&) = delete;
    ConsoleWindows& operator=(const ConsoleWindows&) = delete;

    // Another window; options.newWindow is set here. The reference is valid until the window is closed.
    MainWindow& open(MainWindow::Options options);

    // Serves messages until the last window is closed, or done says so (asked after every message).
    void run(const std::function<bool()>& done = {});

    // Serves one message, as run does.
    void serve(MSG& message);

  private:
    bool translate(MSG& message) const;

    Host& m_host;
    std::vector<std::unique_ptr<MainWindow>> m_windows;
};

} // namespace Console
