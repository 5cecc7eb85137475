#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/certificates/EnterPasswordDlg.h"

namespace
{

using Acceptance::ModalWindow;
using TMgmt::EnterPasswordDlg;

constexpr wchar_t caption[] = L"Enter Password";
constexpr int password = 314;
constexpr int again = 315;

class EnterPasswordDlgTest : public DialogTestBase
{
  protected:
    void enter(const std::wstring& first, const std::wstring& second, int button)
    {
        robot().dialog(caption,
                       [=](ModalWindow& window)
                       {
                           window.type(password, first);
                           window.type(again, second);
                           window.press(button);
                       });
    }
};

TEST_F(EnterPasswordDlgTest, hidesWhatIsTyped)
{
    EnterPasswordDlg dialog;
    robot().dialog(
        caption,
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                   L"-1 Static &Password:",
                                                                   L"314 Edit ",
                                                                   L"-1 Static &Confirm Password:",
                                                                   L"315 Edit ",
                                                                   L"1 Button OK",
                                                                   L"2 Button Cancel",
                                                               }));
            EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{password, again, IDOK, IDCANCEL}));
            EXPECT_EQ(window.focus(), password);
            for (const int field : {password, again})
            {
                EXPECT_TRUE(GetWindowLongW(window.control(field), GWL_STYLE) & ES_PASSWORD) << field;
            }
            window.press(IDCANCEL);
        });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
    EXPECT_FALSE(dialog.password);
}

TEST_F(EnterPasswordDlgTest, takesEqualPasswordsAsTheyAre)
{
    for (const wchar_t* const text : {L"secret", L" with blanks ", L"Schlüssel 密碼 \U0001F511", L""})
    {
        EnterPasswordDlg dialog;
        enter(text, text, IDOK);
        EXPECT_EQ(dialog.show(frame()), IDOK);
        ASSERT_TRUE(dialog.password);
        EXPECT_EQ(dialog.password->get(), Core::String(text));
    }
}

TEST_F(EnterPasswordDlgTest, staysOpenOverDifferentPasswords)
{
    EnterPasswordDlg dialog;
    enter(L"secret", L"Secret", IDOK);
    robot().message(complaint(L"Passwords don't match.", MB_ICONERROR));
    enter(L"secret", L"secret", IDOK);
    EXPECT_EQ(dialog.show(frame()), IDOK);
    EXPECT_EQ(dialog.password->get(), Core::String(L"secret"));
}

} // namespace
