#pragma once

#include "kit/ModalWindow.h"

#include <windows.h>

#include <deque>
#include <functional>
#include <source_location>
#include <string>
#include <vector>

namespace Acceptance
{

// The window that owns a modal window, seen from the test.
enum class Owner
{
    none,
    frame,  // the console's main window
    dialog, // the modal window that was before the user until now
};

// A message box, as a whole.
struct MessageBoxSeen
{
    std::wstring text;
    std::wstring caption;
    UINT icon = 0; // MB_ICONERROR, MB_ICONEXCLAMATION, MB_ICONQUESTION, MB_ICONINFORMATION, or 0
    Owner owner = Owner::none;
    std::vector<int> buttons{IDOK};
    // What the robot presses.
    int answer = IDOK;
};

// Uses the modal windows that a call opens on this thread, in place of a person. It works through a script: each step
// says which modal window comes to the front next and what to do with it. When a step's window closes and an earlier
// one is in front again, that is the next step's window. Any other window fails the test and is closed, and so does a
// step that never came. There is one robot at a time.
class Robot
{
  public:
    using Action = std::function<void(ModalWindow&)>;

    // frame: what Owner::frame stands for.
    explicit Robot(HWND frame);
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;
    ~Robot();

    // The next window is a dialog with this caption. The action ends with ModalWindow::press or another of its queued
    // operations. The owner is checked when the dialog comes up for the first time.
    void dialog(const std::wstring& caption, Action action, Owner owner = Owner::frame,
                std::source_location where = std::source_location::current());
    // The next window is this message box, to the letter.
    void message(const MessageBoxSeen& expected, std::source_location where = std::source_location::current());
    // The next window is a message box; the function checks it.
    void messageThat(std::function<void(const MessageBoxSeen&)> check,
                     std::source_location where = std::source_location::current());

    // Fails the test when steps are left, and forgets them.
    void finish();
    // Steps that did not come yet.
    std::size_t stepsLeft() const { return m_steps.size(); }

  private:
    struct Step
    {
        std::wstring what;
        std::source_location where;
        // Says what is wrong with the window, or uses it and returns an empty text.
        std::function<std::wstring(ModalWindow&)> use;
    };

    static LRESULT CALLBACK hook(int code, WPARAM wparam, LPARAM lparam);
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    void activated(HWND window);
    void destroyed(HWND window);
    void use(HWND window);
    void getRidOf(HWND window);
    Owner ownerOf(HWND window) const;
    MessageBoxSeen read(ModalWindow& window) const;

    static Robot* s_robot;

    HWND m_frame;
    HWND m_window; // receives the robot's own messages from whatever message loop runs
    HHOOK m_hook;
    std::deque<Step> m_steps;
    // The modal windows that are open, the one in front last.
    std::vector<HWND> m_open;
    bool m_first = false; // the window in front is there for the first time
};

} // namespace Acceptance
