#include "DialogTestBase.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/Dialog.h"

#include <stdexcept>
#include <system_error>

namespace
{

using Acceptance::ModalWindow;

class ThrowingDialog : public TMgmt::Dialog
{
  public:
    ThrowingDialog() : Dialog(IDD_EDIT_PROPERTY) {}
    bool throwOnInit = false;

  protected:
    bool onInit() override
    {
        if (throwOnInit)
        {
            throw std::runtime_error("in onInit");
        }
        return true;
    }
    void onOk() override { throw std::runtime_error("in onOk"); }
};

class DialogTest : public DialogTestBase
{
};

TEST_F(DialogTest, closesAndRethrowsWhatAHandlerThrew)
{
    ThrowingDialog dialog;
    robot().dialog(L"Edit Property", [](ModalWindow& window) { window.press(IDOK); });
    EXPECT_THROW(dialog.show(frame()), std::runtime_error);
}

TEST_F(DialogTest, doesNotOpenWhenItsInitialisationThrew)
{
    ThrowingDialog dialog;
    dialog.throwOnInit = true;
    EXPECT_THROW(dialog.show(frame()), std::runtime_error);
}

TEST_F(DialogTest, saysWhenItCannotBeMade)
{
    class : public TMgmt::Dialog
    {
      public:
        using Dialog::Dialog;

      protected:
        bool onInit() override { return true; }
    } missing(9999);
    EXPECT_THROW(missing.show(frame()), std::system_error);
}

} // namespace
