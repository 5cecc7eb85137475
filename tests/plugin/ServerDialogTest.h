#pragma once

#include "DialogTestBase.h"

#include "dialogContents.h"
#include "kit/ModalWindow.h"
#include "kit/ServerFiles.h"
#include "tmgmt/ui/Dialog.h"

// A test of a dialog about what the server keeps. The server has no files at first.
class ServerDialogTest : public DialogTestBase
{
  protected:
    using ModalWindow = Acceptance::ModalWindow;
    using Use = std::function<void(ModalWindow&)>;

    explicit ServerDialogTest(const wchar_t* caption) : m_caption(caption) {}

    void SetUp() override { Acceptance::ServerFiles::reset(); }
    void TearDown() override
    {
        DialogTestBase::TearDown();
        Acceptance::ServerFiles::reset();
    }

    // The robot's next step: the dialog is in front.
    void inDialog(const Use& use) { robot().dialog(m_caption, use); }
    // The next steps: uses the dialog, presses OK, and is told this.
    void okIsRefused(const Use& use, const wchar_t* text)
    {
        inDialog(
            [use](ModalWindow& window)
            {
                use(window);
                window.press(IDOK);
            });
        robot().message(complaint(text, MB_ICONERROR));
    }

    // Shows the dialog, uses it and presses that button, which ends it.
    void endAfter(
        TMgmt::Dialog& dialog, int button, const Use& use = [](ModalWindow&) {})
    {
        inDialog(
            [use, button](ModalWindow& window)
            {
                use(window);
                window.press(button);
            });
        EXPECT_EQ(dialog.show(frame()), button);
    }

  private:
    const wchar_t* m_caption;
};
