#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace Hostile
{

// Uses the dialogs, message boxes and wizards that a call opens on this thread, from inside their own message loops and
// so fast that most of them are never drawn. There is one at a time.
class HastyUser
{
  public:
    // What to do with the dialog in front; visits counts how often it was in front before. Messages to it are posted,
    // never sent: what they lead to may open the next dialog.
    using Use = std::function<void(HWND dialog, int visits)>;

    explicit HastyUser(Use use);
    HastyUser(const HastyUser&) = delete;
    HastyUser& operator=(const HastyUser&) = delete;
    ~HastyUser();

    // Dialogs seen so far.
    int seen() const { return m_seen; }

    // The window whose controls the user has before him: of a wizard, the page that it shows.
    static HWND panelOf(HWND dialog);
    // The control with that id, of the dialog or of the page that a wizard shows; null when there is none.
    static HWND controlOf(HWND dialog, int id);
    // Posts a click on the control with that id.
    static void click(HWND dialog, int id);
    // Puts a text into a field at once.
    static void type(HWND dialog, int control, const wchar_t* text);
    // Whatever it is, it closes.
    static void dismiss(HWND dialog);

  private:
    struct Open
    {
        HWND window;
        int visits;
    };

    static LRESULT CALLBACK hook(int code, WPARAM wparam, LPARAM lparam);
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    void created(HWND window, const CREATESTRUCTW& record);
    void destroyed(HWND window);
    void look();

    static HastyUser* s_user;

    Use m_use;
    HWND m_window; // receives the user's own messages from whatever message loop runs
    HHOOK m_hook;
    std::vector<Open> m_open; // the one in front last
    bool m_looks = false;     // a message of the user's own is on its way
    int m_seen = 0;
};

} // namespace Hostile
