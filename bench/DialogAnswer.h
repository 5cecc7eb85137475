#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace Bench
{

// Answers the dialog that comes up on this thread while this lives: fills in the controls and presses OK. Whatever
// comes up after that is cancelled, so that nothing waits for a person. There is one at a time.
class DialogAnswer
{
  public:
    // Texts by the ids of the controls.
    explicit DialogAnswer(std::map<int, std::wstring> texts);
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;
    ~DialogAnswer();

  private:
    static LRESULT CALLBACK hook(int code, WPARAM wparam, LPARAM lparam);
    void answer(HWND dialog);

    static DialogAnswer* s_current;

    std::map<int, std::wstring> m_texts;
    bool m_answered = false;
    HHOOK m_hook;
};

} // namespace Bench
