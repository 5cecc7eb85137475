// The pages of the certificate wizard, as DialogFitTest.cpp has the dialogs.
#include "certificates/WizardPagesTest.h"
#include "fit/faults.h"

#include <ostream>

namespace
{

using Acceptance::ModalWindow;
using Acceptance::WizardWindow;
using Fit::Controls;
using Fit::Faults;

struct Page
{
    const char* name;
    const wchar_t* caption;
    void (*walk)(WizardWindow&);
    // What the texts of the page, which are fixed, share with the wizard's own buttons. Windows has "&Finish", too.
    Faults mnemonics{};
};

void PrintTo(const Page& page, std::ostream* out)
{
    *out << page.name;
}

class WizardFit : public WizardPagesTest, public testing::WithParamInterface<Page>
{
  public:
    static const std::vector<Page>& pages()
    {
        static const std::vector<Page> all{
            {"kind", L"Select Certificate Type", stay},
            {"request", L"Select Certificate Request Operation", toRequestOperation},
            {"subject", L"Generate Certificate", toSubject},
            {"requestFile", L"Certificate Request File Name", toRequestFile, {L"B: 298 \"&Browse\" 12323 \"< &Back\""}},
            {"certificateFile",
             L"Select Private Key File",
             toCertificateFile,
             {L"B: 298 \"&Browse\" 12323 \"< &Back\""}},
        };
        return all;
    }

  protected:
    void lookAtPage(const std::function<void(WizardWindow&, HWND page, Controls)>& look)
    {
        lookAt(GetParam().caption, GetParam().walk,
               [&](WizardWindow& sheet, ModalWindow& page)
               { look(sheet, page.handle(), Fit::controlsOf(page.handle())); });
    }
};

TEST_P(WizardFit, hasANameForEveryControl)
{
    lookAtPage([](WizardWindow&, HWND, const Controls& controls)
               { EXPECT_EQ(Fit::faultsOfNames(controls), Faults()); });
}

TEST_P(WizardFit, isUsedInTheOrderThatItIsRead)
{
    lookAtPage([](WizardWindow&, HWND page, const Controls& controls)
               { EXPECT_EQ(Fit::faultsOfOrder(page, controls), Faults()); });
}

TEST_P(WizardFit, hasMnemonicsOfItsOwn)
{
    lookAtPage(
        [](WizardWindow& sheet, HWND page, Controls controls)
        {
            for (const int button : sheet.buttons())
            {
                controls.push_back(Fit::controlOf(page, GetDlgItem(GetParent(page), button)));
            }
            EXPECT_EQ(Fit::faultsOfMnemonics(controls), GetParam().mnemonics);
        });
}

// The wizard itself keeps its pages away from its edges.
TEST_P(WizardFit, hasRoomForItsTexts)
{
    lookAtPage([](WizardWindow&, HWND page, const Controls& controls)
               { EXPECT_EQ(Fit::faultsOfRoom(page, controls, 0), Faults()); });
}

INSTANTIATE_TEST_SUITE_P(All, WizardFit, testing::ValuesIn(WizardFit::pages()),
                         [](const testing::TestParamInfo<Page>& page) { return page.param.name; });

} // namespace
