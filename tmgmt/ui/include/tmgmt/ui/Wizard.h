#pragma once

#include <vector>

#include "tmgmt/ui/WizardPage.h"

namespace TMgmt
{

// A modal property sheet in wizard mode. A wizard class has its pages as members, in the order of the sheet, and what
// they work on together.
class Wizard
{
  public:
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    // Runs the wizard from its first page until it is closed. True when it was finished, false when it was cancelled.
    // An exception of a page's handler closes the wizard and comes out here. Throws std::system_error when the wizard
    // cannot be made.
    bool show(HWND owner);

  protected:
    Wizard() = default;
    ~Wizard() = default;

  private:
    friend class WizardPage;

    // Pages are named by their resources. Back leads to the page that the user came from, whatever the order of the
    // sheet.
    UINT goOn(UINT from, UINT to);
    // Nothing on the first page.
    std::optional<UINT> goBack();

    std::vector<WizardPage*> m_pages;
    // The pages that the user went through before the one that he has before him.
    std::vector<UINT> m_way;
};

} // namespace TMgmt
