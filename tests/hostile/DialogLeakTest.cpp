#include "HastyUser.h"
#include "LeakTest.h"
#include "UnseenDialogs.h"

#include "certificates/Authority.h"
#include "kit/ImportSpy.h"
#include "kit/ServerFiles.h"
#include "kit/WizardWindow.h"
#include "kit/windows.h"

#include <cstdlib>
#include <string>
#include <vector>

namespace Hostile
{
namespace
{

using Acceptance::WizardWindow;

// Presses a button; with a text, it is put into that field before.
struct Press
{
    int control;
    const wchar_t* text = nullptr;
};

struct DialogUse
{
    const char* name;
    // The node that has the command, or its row of that number.
    const wchar_t* node;
    int row;
    long command;
    // Goes through the dialogs as they come; what is open behind the last one is closed.
    std::vector<Press> presses;
    // How many dialogs that is.
    int dialogs;
    // And how many message boxes. They are answered with their first button, and only one case shows them for real:
    // drawing takes most of the time.
    int messages;
    bool showsMessages = false;
};

void PrintTo(const DialogUse& use, std::ostream* out)
{
    *out << use.name;
}

constexpr int itself = -1;
constexpr wchar_t images[] = L"Server Templates\\Invoices\\Images";
constexpr wchar_t invoices[] = L"Server Templates\\Invoices";
constexpr wchar_t listener[] = L"Engine Settings\\Listener Configuration";
constexpr wchar_t encoder[] = L"Engine Settings\\AFP Encoder";
constexpr wchar_t certificates[] = L"Server Certificates";

constexpr wchar_t secretFile[] = L"C:\\HostileSecret.p12";

class DialogLeak : public LeakTest, public testing::WithParamInterface<DialogUse>
{
  protected:
    // The data object that the command goes to.
    Microsoft::WRL::ComPtr<IDataObject> target()
    {
        const HSCOPEITEM node = instance().find(GetParam().node);
        if (GetParam().row == itself)
        {
            return instance().object(instance().cookieOf(node));
        }
        instance().show(view(), node);
        Microsoft::WRL::ComPtr<IDataObject> object;
        view().component->QueryDataObject(view().console.rows().at(static_cast<std::size_t>(GetParam().row)).cookie,
                                          CCT_RESULT, &object);
        return object;
    }

    void press(HWND dialog)
    {
        if (m_next == GetParam().presses.size())
        {
            HastyUser::dismiss(dialog);
            return;
        }
        const Press& press = GetParam().presses.at(m_next++);
        if (press.text)
        {
            HastyUser::type(dialog, press.control, press.text);
        }
        else
        {
            HastyUser::click(dialog, press.control);
        }
    }

    void round(IExtendContextMenu& menus, IDataObject* object)
    {
        m_next = 0;
        menus.Command(GetParam().command, object);
    }

    Acceptance::ImportSpy<"DialogBoxParamW", decltype(DialogBoxParamW)> dialogs{showUnseen};
    Acceptance::ImportSpy<"MessageBoxW", decltype(MessageBoxW)> messages{
        [this](HWND owner, LPCWSTR text, LPCWSTR caption, UINT style)
        { return GetParam().showsMessages ? messages.callThrough(owner, text, caption, style) : IDOK; }};
    HastyUser user{[this](HWND dialog, int) { press(dialog); }};

  private:
    std::size_t m_next = 0;
};

TEST_P(DialogLeak, openAndCloseLeaveNothing)
{
    const auto object = target();
    const auto menus = view().as<IExtendContextMenu>();
    round(*menus.Get(), object.Get());
    const int windows = GetParam().dialogs + (GetParam().showsMessages ? GetParam().messages : 0);
    ASSERT_EQ(windows, user.seen());
    ASSERT_EQ(GetParam().messages, messages.calls());
    expectLevel([&] { round(*menus.Get(), object.Get()); });
    EXPECT_EQ(windows * (1 + rounds / 10 + rounds), user.seen());
}

INSTANTIATE_TEST_SUITE_P(
    All, DialogLeak,
    testing::Values(DialogUse{"textOfASetting", listener, 1, 1000, {{203, L"no port"}, {IDOK}}, 1, 1},
                    DialogUse{"choiceOfASetting", encoder, 1, 1000, {}, 1, 0},
                    DialogUse{"switchOfASetting", encoder, 0, 1000, {}, 1, 0},
                    DialogUse{"privateFont", L"Engine Settings\\Private Fonts", 0, 1044, {{232, L""}, {IDOK}}, 1, 1},
                    DialogUse{"hotFolderWithItsActions",
                              L"Hot Folders",
                              0,
                              1048,
                              {{287}, {IDCANCEL}, {246}, {258}, {IDOK}, {259}, {IDCANCEL}, {232, L""}, {IDOK}},
                              4,
                              2},
                    DialogUse{"application", L"Server Templates", itself, 1058, {{IDOK}}, 1, 1},
                    DialogUse{"newTemplate", invoices, itself, 1053, {{IDOK}}, 1, 1},
                    DialogUse{"templateName", invoices, 0, 1052, {{284, L""}, {IDOK}}, 1, 1},
                    DialogUse{"resourceFolder", invoices, itself, 1060, {{IDOK}}, 1, 1},
                    DialogUse{"newResourceFile", images, itself, 1064, {{IDOK}}, 1, 1},
                    DialogUse{"resourceFileName", images, 0, 1068, {{233, L""}, {IDOK}}, 1, 1},
                    DialogUse{"access", L"Server Templates\\Invoices\\Users", itself, 1057, {}, 1, 0},
                    DialogUse{"newUser", L"Users", itself, 1054, {{IDOK}}, 1, 1},
                    DialogUse{
                        "userWithMessageBox", L"Users", 1, 1055, {{233, L"a password"}, {IDOK}, {IDOK}}, 1, 1, true},
                    DialogUse{"certificate", certificates, 0, 1015, {}, 1, 0},
                    // Through all pages but the last one of a request, which needs a subject.
                    DialogUse{"certificateWizard",
                              certificates,
                              itself,
                              1012,
                              {{WizardWindow::next},
                               {WizardWindow::finish},
                               {WizardWindow::back},
                               {310},
                               {WizardWindow::next},
                               {WizardWindow::next},
                               {WizardWindow::next},
                               {WizardWindow::back},
                               {296},
                               {WizardWindow::next},
                               {WizardWindow::finish}},
                              1,
                              3}),
    [](const auto& use) { return use.param.name; });

} // namespace
} // namespace Hostile
