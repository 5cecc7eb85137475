#pragma once

#include "tmgmt/ui/FilePicker.h"
#include "tmgmt/ui/WizardPage.h"

namespace TMgmt
{

// A last page of the certificate wizard that asks for a file: a field for its name, and a button that opens the
// system's dialog for a file to open.
class FileNamePage : public WizardPage
{
  public:
    using WizardPage::WizardPage;

  protected:
    virtual FilePicker picker() const = 0;

    std::wstring fileName() const;

    void onCommand(int control, int notification) override;
    DWORD buttons() const override;
};

} // namespace TMgmt
