#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Acceptance
{

// A modal window as its user has it before him. Controls are named by their ids; a control that is missing (or hidden
// or disabled, where it is to be used) fails the test.
class ModalWindow
{
  public:
    explicit ModalWindow(HWND window) : m_window(window) {}

    HWND handle() const { return m_window; }
    HWND owner() const { return GetWindow(m_window, GW_OWNER); }
    std::wstring caption() const;

    HWND control(int id) const;
    std::wstring text(int id) const;
    bool visible(int id) const { return (GetWindowLongW(control(id), GWL_STYLE) & WS_VISIBLE) != 0; }
    bool enabled(int id) const { return IsWindowEnabled(control(id)) != FALSE; }
    bool checked(int id) const { return IsDlgButtonChecked(m_window, id) == BST_CHECKED; }
    bool readOnly(int id) const { return (GetWindowLongW(control(id), GWL_STYLE) & ES_READONLY) != 0; }
    // The id of the control with the keyboard focus; 0 when it is not in this window.
    int focus() const;
    // Ids of the push buttons that can be seen, in tab order.
    std::vector<int> buttons() const;

    // Replaces an edit control's text, key by key.
    void type(int id, const std::wstring& text);
    // Clicks a check box or a radio button unless it is in that state already.
    void setChecked(int id, bool checked);
    // Presses a button that leaves this window in front: what it does is done when this returns.
    void click(int button);
    // Goes through the entries of a list with the keyboard, up to the one with that index.
    void choose(int list, int index);

    // Both are queued: they happen after the robot's action has returned. What they open or close comes as the
    // script's next step. An action has to end with one of them.
    void press(int button);
    // A key for the control with the focus, as VK_RETURN or VK_ESCAPE.
    void key(WORD virtualKey);
    // The cross in the caption.
    void close();
    // For what needs a message of its own (property sheets, file dialogs).
    void post(HWND target, UINT message, WPARAM wparam, LPARAM lparam);

    // Whether one of them was called.
    bool acted() const { return m_acted; }

  private:
    HWND usable(int id) const;

    HWND m_window;
    bool m_acted = false;
};

} // namespace Acceptance
