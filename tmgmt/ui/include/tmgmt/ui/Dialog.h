#pragma once

#include "tmgmt/ui/DialogWindow.h"

namespace TMgmt
{

// One modal dialog made from a resource of this module. A dialog class is its members (filled by the caller before
// show, read by the caller after it), onInit, and handlers for its buttons.
class Dialog : public DialogWindow
{
  public:
    explicit Dialog(UINT resource) noexcept : m_resource(resource) {}

    // Runs the dialog until it ends and returns the result that it ended with (IDOK, IDCANCEL, or a dialog's own).
    // An exception of a handler closes the dialog and comes out here. Throws std::system_error when the dialog
    // cannot be made.
    INT_PTR show(HWND owner);

  protected:
    // Fills the controls. True lets Windows choose the control that gets the focus; false where setFocus was called.
    virtual bool onInit() = 0;
    // A button or control reported something. The default ends the dialog for Cancel and asks onOk for OK.
    virtual void onCommand(int control, int notification);
    // Takes the controls' contents and ends the dialog, or complains and leaves it open.
    virtual void onOk() { end(IDOK); }

    void end(INT_PTR result) noexcept { EndDialog(window(), result); }

    // A message box owned by this dialog, titled "Validation Error". icon is MB_ICONERROR or MB_ICONEXCLAMATION.
    void complain(const wchar_t* message, UINT icon) noexcept;

  private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    INT_PTR handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    void abandon() noexcept override { end(IDABORT); }

    UINT m_resource;
};

} // namespace TMgmt
