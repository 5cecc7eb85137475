#pragma once

#include "kit/ModalWindow.h"

#include <string>
#include <vector>

namespace Acceptance
{

// A property sheet in wizard mode, in a robot's action.
class WizardWindow
{
  public:
    static constexpr int back = 0x3023;
    static constexpr int next = 0x3024;
    static constexpr int finish = 0x3025;

    explicit WizardWindow(ModalWindow& sheet) : m_sheet(sheet) {}

    // The caption of the page, which is the wizard's.
    std::wstring caption() const { return m_sheet.caption(); }
    // The page that the user has before him; its controls are used as those of a dialog.
    ModalWindow page() const;
    // Which of Back, Next, Finish and Cancel can be pressed.
    std::vector<int> buttons() const;

    // Presses a button that leaves the wizard in front: what it does is done when this returns.
    void click(int button) const;
    // Queued: what it opens or closes comes as the script's next step.
    void press(int button) const { m_sheet.press(button); }
    // The same for a control of the page.
    void pressOnPage(int button) const;

  private:
    ModalWindow& m_sheet;
};

} // namespace Acceptance
