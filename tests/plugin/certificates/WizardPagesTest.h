#pragma once

#include "DialogTestBase.h"

#include "kit/ServerFiles.h"
#include "kit/WizardWindow.h"
#include "tmgmt/certificates/WizImportCertificate.h"

#include <functional>

// The pages of the certificate wizard as they look, each in its place.
class WizardPagesTest : public DialogTestBase
{
  protected:
    using ModalWindow = Acceptance::ModalWindow;
    using WizardWindow = Acceptance::WizardWindow;
    using Walk = std::function<void(WizardWindow&)>;
    static constexpr int selfSigned = 309;
    static constexpr int issuedByAuthority = 310;
    static constexpr int prepareRequest = 295;
    static constexpr int processAnswer = 296;
    static constexpr int country = 303;
    static constexpr int file = 299;
    static constexpr int browse = 298;

    using Look = std::function<void(WizardWindow&, ModalWindow&)>;

    void SetUp() override { Acceptance::ServerFiles::reset(); }

    // Opens the wizard, walks to a page, looks at it and cancels. The wizard's caption is the page's.
    void lookAt(const std::wstring& caption, const Walk& walk, const Look& look)
    {
        TMgmt::WizImportCertificate wizard;
        robot().dialog(L"Select Certificate Type",
                       [&](ModalWindow& window)
                       {
                           WizardWindow sheet(window);
                           walk(sheet);
                           EXPECT_EQ(window.caption(), caption);
                           ModalWindow page = sheet.page();
                           look(sheet, page);
                           sheet.press(IDCANCEL);
                       });
        EXPECT_FALSE(wizard.show(frame()));
    }

    static void stay(WizardWindow&) {}

    static void toRequestOperation(WizardWindow& sheet)
    {
        sheet.page().setChecked(issuedByAuthority, true);
        sheet.click(WizardWindow::next);
    }

    static void toSubject(WizardWindow& sheet) { sheet.click(WizardWindow::next); }

    static void toRequestFile(WizardWindow& sheet)
    {
        toRequestOperation(sheet);
        sheet.click(WizardWindow::next);
        for (int field = 300; field <= 308; ++field)
        {
            sheet.page().type(field, L"AA");
        }
        sheet.click(WizardWindow::next);
    }

    static void toCertificateFile(WizardWindow& sheet)
    {
        toRequestOperation(sheet);
        sheet.page().setChecked(processAnswer, true);
        sheet.click(WizardWindow::next);
    }
};

// Proves: under the header "Certificate File Name" the page speaks of a private key, and its subtitle begins with
// "Your can".
// Proves: the subtitle ends in "distinguishes it from organizations".
