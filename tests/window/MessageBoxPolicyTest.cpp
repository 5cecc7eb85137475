#include "MessageBoxPolicy.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

using namespace Console;

namespace
{

class MessageBoxes : public testing::Test
{
  protected:
    std::vector<std::wstring> reports;
    MessageBoxPolicy policy{[this](const std::wstring& caption, const std::wstring& text)
                            { reports.push_back(caption + L"|" + text); }};
};

// A dialog with a text and an OK button, as a snap-in's own dialog may look.
struct ClosingDialog
{
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM)
    {
        if (message == WM_INITDIALOG)
        {
            // An edit field tells it from a message box.
            CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, dialog, nullptr, nullptr, nullptr);
            CreateWindowExW(0, L"STATIC", L"text", WS_CHILD, 0, 0, 1, 1, dialog,
                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(0xFFFF)), nullptr, nullptr);
            PostMessageW(dialog, WM_APP, 0, 0);
            return TRUE;
        }
        if (message == WM_APP)
        {
            EndDialog(dialog, 7);
            return TRUE;
        }
        if (message == WM_COMMAND && LOWORD(wParam) == IDOK)
        {
            EndDialog(dialog, IDOK);
            return TRUE;
        }
        return FALSE;
    }
};

} // namespace

TEST_F(MessageBoxes, AreReportedAndAnsweredWithTheirOnlyButton)
{
    EXPECT_EQ(MessageBoxW(nullptr, L"The port is\nin use.", L"Error", MB_OK | MB_ICONERROR), IDOK);
    EXPECT_EQ(reports, std::vector<std::wstring>{L"Error|The port is\nin use."});
}

TEST_F(MessageBoxes, AreAnsweredWithTheirDefaultButton)
{
    EXPECT_EQ(MessageBoxW(nullptr, L"Remove?", L"Remove Action", MB_YESNO), IDYES);
    EXPECT_EQ(MessageBoxW(nullptr, L"Remove?", L"Remove Action", MB_YESNO | MB_DEFBUTTON2), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"Again?", L"Retry", MB_RETRYCANCEL | MB_DEFBUTTON2), IDCANCEL);
    EXPECT_EQ(reports.size(), 3U);
}

TEST_F(MessageBoxes, OtherDialogsAreLeftAlone)
{
    alignas(DWORD) struct
    {
        DLGTEMPLATE dialog{WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 0, 0, 100, 50};
        WORD menu = 0;
        WORD type = 0;
        WORD title = 0;
    } dialog;

    const INT_PTR answer =
        DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &dialog.dialog, nullptr, ClosingDialog::procedure, 0);

    EXPECT_EQ(answer, 7);
    EXPECT_TRUE(reports.empty());
}
