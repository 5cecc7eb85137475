#pragma once

#include "CommandLine.h"
#include "MainWindow.h"
#include "OutputStream.h"

#include <string>
#include <vector>

namespace Console
{

// The program from its arguments to its exit code.
class ConsoleProgram
{
  public:
    enum ExitCode
    {
        done = 0,
        failed = 1,
        wrongUsage = 2,
    };

    // Both are lent.
    ConsoleProgram(OutputStream& out, OutputStream& error) : m_out(out), m_error(error) {}

    // show: how the window is to open, as wWinMain is told.
    int run(const std::vector<std::wstring>& arguments, int show);

  private:
    int runHost(const CommandLine& line, int show);
    int list(const CommandLine& line, Host& host, SnapIn& snapIn);
    int openWindow(const CommandLine& line, Host& host, SnapIn& snapIn, int show);
    int takeScreenshot(const CommandLine& line, Host& host, SnapIn& snapIn);
    // none: there is no such node, and that is said.
    NodeId find(const CommandLine& line, const Host& host, const SnapIn& snapIn);
    // Selects the node and the row that the command line names; false, and it is said, when there is none.
    bool select(const CommandLine& line, MainWindow& window, NodeId node);
    int fail(const std::wstring& sentence);
    void report(const std::wstring& text);

    OutputStream& m_out;
    OutputStream& m_error;
    bool m_attended = true; // somebody sees the screen
};

} // namespace Console
