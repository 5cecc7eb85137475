#pragma once

#include <optional>

#include "tmgmt/ui/DialogWindow.h"

namespace TMgmt
{

class Wizard;

// One page of a wizard, made from a dialog resource of this module whose caption becomes the wizard's.
class WizardPage : public DialogWindow
{
  public:
    // Puts the page behind those that the wizard has. title and subtitle, which the header above the page shows, are
    // constants: they are not copied.
    WizardPage(Wizard& wizard, UINT resource, const wchar_t* title, const wchar_t* subtitle);

  protected:
    // Before the page is shown for the first time: fills the controls. They stay as the user leaves them while he goes
    // back and forth.
    virtual void onInit() {}
    // A button or control reported something.
    virtual void onCommand(int, int) {}
    // Whenever the page comes before the user: the buttons that it offers, as PSWIZB_ constants. Finish takes the
    // place of Next.
    virtual DWORD buttons() const = 0;
    // Next: the resource of the page that follows; nothing leaves the user on this one.
    virtual std::optional<UINT> onNext() { return std::nullopt; }
    // Finish: true closes the wizard.
    virtual bool onFinish() { return true; }

  private:
    friend class Wizard;

    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    INT_PTR handle(UINT message, WPARAM wparam, LPARAM lparam) override;
    INT_PTR notified(UINT code);
    INT_PTR answer(LONG_PTR result) noexcept;
    void abandon() noexcept override;

    HWND sheet() const noexcept { return GetParent(window()); }

    Wizard& m_wizard;
    UINT m_resource;
    const wchar_t* m_title;
    const wchar_t* m_subtitle;
};

} // namespace TMgmt
