#pragma once

#include "CommandLine.h"
#include "MainWindow.h"

#include <functional>
#include <string>

namespace Console
{

// Takes the picture that the command line asks for. It drives the window from inside its message loop, also while a
// dialog runs a loop of its own: a timer's message comes only when nothing else waits, so when it comes everything
// is painted.
class ScreenshotRun
{
  public:
    // The window is shown and its node selected. giveUp ends the process: it is called when a dialog cannot be closed
    // and so holds the program in its loop.
    ScreenshotRun(MainWindow& window, const CommandLine& line, std::function<void(const std::wstring&)> giveUp);
    ScreenshotRun(const ScreenshotRun&) = delete;
    ScreenshotRun& operator=(const ScreenshotRun&) = delete;
    ~ScreenshotRun();

    // The picture is taken, or the run failed, and every dialog is closed again.
    bool done() const { return m_stage == Stage::done; }
    // Empty: all went well.
    const std::wstring& problem() const { return m_problem; }

  private:
    enum class Stage
    {
        command, // to be run once the window is painted
        steps,   // in the dialog that the command opened
        picture,
        closing,
        done,
    };

    static void CALLBACK tick(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;
    void advance();
    bool settled();
    void runCommand();
    bool runFrom(ContextMenu menu);
    void runStep(HWND dialog);
    void takePicture(HWND dialog);
    void closeDialog(HWND dialog);
    void fail(const std::wstring& problem);

    MainWindow& m_window;
    const CommandLine& m_line;
    std::function<void(const std::wstring&)> m_giveUp;
    Stage m_stage = Stage::command;
    std::size_t m_step = 0;
    bool m_commandRunning = false;
    std::wstring m_scene; // what was on the screen at the last tick
    int m_quietTicks = 0;
    int m_closeTries = 0;
    ULONGLONG m_deadline;
    std::wstring m_problem;
};

} // namespace Console
