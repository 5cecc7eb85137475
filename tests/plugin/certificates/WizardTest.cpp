#include "DialogTestBase.h"

#include "kit/ImportSpy.h"
#include "kit/WizardWindow.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/ui/Wizard.h"

#include <prsht.h>

#include <stdexcept>
#include <system_error>

namespace
{

using Acceptance::ModalWindow;
using Acceptance::WizardWindow;

constexpr wchar_t firstCaption[] = L"Select Certificate Type";
constexpr wchar_t secondCaption[] = L"Select Certificate Request Operation";
constexpr wchar_t thirdCaption[] = L"Certificate Request File Name";

struct TestPage : TMgmt::WizardPage
{
    using WizardPage::WizardPage;

    void onInit() override
    {
        ++inits;
        if (throwsOnInit)
        {
            throw std::runtime_error("in onInit");
        }
    }
    DWORD buttons() const override { return offered; }
    std::optional<UINT> onNext() override
    {
        if (throwsOnNext)
        {
            throw std::runtime_error("in onNext");
        }
        return following;
    }
    bool onFinish() override { return finishes; }

    DWORD offered = PSWIZB_BACK | PSWIZB_NEXT;
    std::optional<UINT> following;
    bool finishes = true;
    bool throwsOnInit = false;
    bool throwsOnNext = false;
    int inits = 0;
};

struct TestWizard : TMgmt::Wizard
{
    TestPage first{*this, IDD_WIZARD_TYPE, L"First", L"The first page"};
    TestPage second{*this, IDD_WIZARD_REQUEST_OPERATION, L"Second", L"The second page"};
    TestPage third{*this, IDD_WIZARD_REQUEST_FILE, L"Third", L"The third page"};
};

class WizardTest : public DialogTestBase
{
  protected:
    void inWizard(const std::wstring& caption, const std::function<void(ModalWindow&, WizardWindow&)>& use)
    {
        robot().dialog(caption,
                       [use](ModalWindow& window)
                       {
                           WizardWindow sheet(window);
                           use(window, sheet);
                       });
    }
};

TEST_F(WizardTest, goesToThePageThatTheOneInFrontChooses)
{
    TestWizard wizard;
    wizard.first.following = IDD_WIZARD_REQUEST_FILE;
    inWizard(firstCaption,
             [](ModalWindow& window, WizardWindow& sheet)
             {
                 sheet.click(WizardWindow::next);
                 EXPECT_EQ(window.caption(), thirdCaption);
                 sheet.press(IDCANCEL);
             });
    EXPECT_FALSE(wizard.show(frame()));
    EXPECT_EQ(wizard.second.inits, 0);
}

TEST_F(WizardTest, goesBackTheWayThatOneCame)
{
    TestWizard wizard;
    wizard.first.following = IDD_WIZARD_REQUEST_FILE;
    wizard.third.following = IDD_WIZARD_REQUEST_OPERATION;
    inWizard(firstCaption,
             [](ModalWindow& window, WizardWindow& sheet)
             {
                 sheet.click(WizardWindow::next);
                 sheet.click(WizardWindow::next);
                 EXPECT_EQ(window.caption(), secondCaption);
                 sheet.click(WizardWindow::back);
                 EXPECT_EQ(window.caption(), thirdCaption);
                 sheet.click(WizardWindow::back);
                 EXPECT_EQ(window.caption(), firstCaption);
                 sheet.press(IDCANCEL);
             });
    EXPECT_FALSE(wizard.show(frame()));
    EXPECT_EQ(wizard.first.inits, 1) << "a page is filled once";
}

TEST_F(WizardTest, staysOnAPageThatChoosesNone)
{
    TestWizard wizard;
    inWizard(firstCaption,
             [](ModalWindow& window, WizardWindow& sheet)
             {
                 sheet.click(WizardWindow::next);
                 EXPECT_EQ(window.caption(), firstCaption);
                 sheet.press(IDCANCEL);
             });
    EXPECT_FALSE(wizard.show(frame()));
}

TEST_F(WizardTest, hasNothingBeforeItsFirstPage)
{
    TestWizard wizard;
    inWizard(firstCaption,
             [](ModalWindow& window, WizardWindow& sheet)
             {
                 sheet.click(WizardWindow::back);
                 EXPECT_EQ(window.caption(), firstCaption);
                 sheet.press(IDCANCEL);
             });
    EXPECT_FALSE(wizard.show(frame()));
}

TEST_F(WizardTest, isFinishedWhereThePageAgrees)
{
    TestWizard wizard;
    wizard.first.offered = PSWIZB_FINISH;
    inWizard(firstCaption, [](ModalWindow&, WizardWindow& sheet) { sheet.press(WizardWindow::finish); });
    EXPECT_TRUE(wizard.show(frame()));
}

TEST_F(WizardTest, staysOpenWhereThePageDoesNot)
{
    TestWizard wizard;
    wizard.first.offered = PSWIZB_FINISH;
    wizard.first.finishes = false;
    inWizard(firstCaption,
             [](ModalWindow& window, WizardWindow& sheet)
             {
                 sheet.click(WizardWindow::finish);
                 EXPECT_EQ(window.caption(), firstCaption);
                 sheet.press(IDCANCEL);
             });
    EXPECT_FALSE(wizard.show(frame()));
}

TEST_F(WizardTest, canBeShownAgainFromItsFirstPage)
{
    TestWizard wizard;
    wizard.first.following = IDD_WIZARD_REQUEST_OPERATION;
    for (int i = 0; i < 2; ++i)
    {
        inWizard(firstCaption,
                 [](ModalWindow&, WizardWindow& sheet)
                 {
                     sheet.click(WizardWindow::next);
                     sheet.press(IDCANCEL);
                 });
        EXPECT_FALSE(wizard.show(frame()));
    }
}

TEST_F(WizardTest, closesAndRethrowsWhatAHandlerThrew)
{
    TestWizard wizard;
    wizard.first.throwsOnNext = true;
    inWizard(firstCaption, [](ModalWindow&, WizardWindow& sheet) { sheet.press(WizardWindow::next); });
    EXPECT_THROW(wizard.show(frame()), std::runtime_error);
}

TEST_F(WizardTest, closesAndRethrowsWhatAPageThrewWhenItWasMade)
{
    TestWizard wizard;
    wizard.first.following = IDD_WIZARD_REQUEST_OPERATION;
    wizard.second.throwsOnInit = true;
    inWizard(firstCaption, [](ModalWindow&, WizardWindow& sheet) { sheet.press(WizardWindow::next); });
    EXPECT_THROW(wizard.show(frame()), std::runtime_error);
}

TEST_F(WizardTest, closesAndRethrowsWhatItsFirstPageThrewWhenItWasMade)
{
    TestWizard wizard;
    wizard.first.throwsOnInit = true;
    // It closes by itself.
    inWizard(firstCaption, [](ModalWindow& window, WizardWindow&) { window.post(window.handle(), WM_NULL, 0, 0); });
    EXPECT_THROW(wizard.show(frame()), std::runtime_error);
}

TEST_F(WizardTest, saysWhenItCannotBeMade)
{
    const Acceptance::ImportSpy<"PropertySheetW", decltype(PropertySheetW)> sheets(
        [](LPCPROPSHEETHEADERW) -> INT_PTR
        {
            SetLastError(ERROR_NOT_ENOUGH_MEMORY);
            return -1;
        },
        nullptr);
    TestWizard wizard;
    try
    {
        wizard.show(frame());
        ADD_FAILURE() << "it said nothing";
    }
    catch (const std::system_error& error)
    {
        EXPECT_EQ(error.code().value(), ERROR_NOT_ENOUGH_MEMORY);
    }
}

} // namespace
