// Every dialog of the plug-in, as it is on the screen: named for screen readers, in the order that the eye goes, with
// mnemonics that are its own, and with room for its texts. ./test.sh runs these at 96, 144 and 192 dots per inch.
#include "DialogTestBase.h"
#include "fit/faults.h"

#include "tmgmt/certificates/CertificateDlg.h"
#include "tmgmt/certificates/EnterPasswordDlg.h"
#include "tmgmt/fonts_logs/AddPrivateFontDlg.h"
#include "tmgmt/hotfolders/EditActionsDlg.h"
#include "tmgmt/hotfolders/EditHotFolderActionDlg.h"
#include "tmgmt/hotfolders/EditHotFolderDlg.h"
#include "tmgmt/hotfolders/HotFolderSettingsDlg.h"
#include "tmgmt/resources/ids.h"
#include "tmgmt/settings/EditBoolPropertyDlg.h"
#include "tmgmt/settings/EditEnumPropertyDlg.h"
#include "tmgmt/settings/EditPropertyDlg.h"
#include "tmgmt/templates/AddTemplateDlg.h"
#include "tmgmt/templates/AddTemplateUserDlg.h"
#include "tmgmt/templates/EditApplicationDlg.h"
#include "tmgmt/templates/EditFileDlg.h"
#include "tmgmt/templates/EditResourceDlg.h"
#include "tmgmt/templates/EditResourceFileDlg.h"
#include "tmgmt/templates/EditTemplateDlg.h"
#include "tmgmt/users/AddUserDlg.h"
#include "tmgmt/users/EditUserDlg.h"

#include <commctrl.h>

#include <ostream>
#include <set>

namespace
{

using Acceptance::ModalWindow;
using Fit::Controls;
using Fit::Faults;
using namespace TMgmt;

constexpr int margin = 7; // dialog units

// Dialog 291, which nothing opens.
class SelectCertificateFile : public Dialog
{
  public:
    SelectCertificateFile() : Dialog(IDD_SELECT_CERTIFICATE_FILE) {}

  protected:
    bool onInit() override { return true; }
};

struct Case
{
    const char* name;
    int resource;
    const wchar_t* caption;
    std::function<INT_PTR(HWND owner)> show;
    // What the dialog's texts, which are fixed, bring with them.
    Faults names{};
    Faults mnemonics{};
};

void PrintTo(const Case& dialog, std::ostream* out)
{
    *out << dialog.name;
}

template <class DialogType, class... Arguments>
auto showing(Arguments... arguments)
{
    return [=](HWND owner)
    {
        DialogType dialog(arguments...);
        return dialog.show(owner);
    };
}

Tessaro::ServerApplication invoices()
{
    Tessaro::ServerApplication application;
    application.setApplicationPath(L"C:\\Invoices");
    return application;
}

HotFolders::HotFolder hotFolder(bool stylesheet)
{
    HotFolders::HotFolder folder;
    folder.setFolder(L"C:\\In");
    folder.setApplyFolderXslTemplate(stylesheet);
    return folder;
}

INT_PTR showCertificate(HWND owner)
{
    const Security::Certificate certificate(
        {.issuerCN = L"An authority", .subjectCN = L"server.example", .serialNumber = L"0A1B", .fingerprint = {}});
    return CertificateDlg(certificate).show(owner);
}

// Kept as is: each of these buttons comes right after the field or the text that it belongs to, which tells a listener
// which one it is. A letter that two controls have takes the user from one to the other.
const Faults hotFolderNames{L"alike \"Browse\": 242 248 238", L"alike \"Edit ...\": 246 247"};
const Faults hotFolderMnemonics{
    L"A: -1 \"File P&attern\" 286 \"&Apply Stylesheet\"",
    L"B: 242 \"&Browse\" 248 \"&Browse\" 238 \"&Browse\"",
    L"E: 243 \"Monitoring is &enabled for this folder\" 246 \"&Edit ...\"",
    L"S: -1 \"&Stylesheet File:\" 287 \"&Settings\"",
};

const std::wstring description = L"What the setting is for.";

const std::vector<Case> dialogs{
    {"property", IDD_EDIT_PROPERTY, L"Edit Property",
     showing<EditPropertyDlg>(PropertyKind::points, L"Port", L"1099", description, true)},
    {"propertyOfFourOptions", IDD_EDIT_ENUM_PROPERTY, L"Edit Property",
     showing<EditEnumPropertyDlg>(PropertyOptions{{L"TTF_EMBEDDED", L"Embedded TTF"},
                                                  {L"TTF", L"TTF"},
                                                  {L"NATIVE_RASTER", L"AFP Raster"},
                                                  {L"NATIVE_OUTLINE", L"AFP Outline"}},
                                  L"Fonts Used", L"TTF", description, true)},
    {"propertyOfTwoOptions", IDD_EDIT_ENUM_PROPERTY, L"Edit Property",
     showing<EditEnumPropertyDlg>(PropertyOptions{{L"RGB", L"RGB"}, {L"PATTERN", L"PATTERN"}}, L"Method", L"RGB",
                                  description, true)},
    {"trueOrFalse", IDD_EDIT_BOOL_PROPERTY, L"Edit Property",
     showing<EditBoolPropertyDlg>(L"Convert to Grayscale", true, description, true)},
    {"privateFont", IDD_EDIT_PRIVATE_FONT, L"Edit Private Font", showing<AddPrivateFontDlg>()},
    {"hotFolder", IDD_HOT_FOLDER, L"", showing<EditHotFolderDlg>(hotFolder(false), true), hotFolderNames,
     hotFolderMnemonics},
    {"hotFolderWithStylesheet", IDD_HOT_FOLDER, L"", showing<EditHotFolderDlg>(hotFolder(true), true), hotFolderNames,
     hotFolderMnemonics},
    {"hotFolderSettings", IDD_HOT_FOLDER_SETTINGS, L"Settings", showing<HotFolderSettingsDlg>(L"http://host/")},
    {"actions", IDD_ACTIONS, L"Actions", showing<EditActionsDlg>(HotFolders::ActionList{HotFolders::Action()})},
    {"action", IDD_ACTION, L"Edit Action", showing<EditHotFolderActionDlg>()},
    {"application", IDD_EDIT_APPLICATION, L"Edit Application", showing<EditApplicationDlg>()},
    {"newTemplate", IDD_ADD_TEMPLATE, L"Add Template", showing<AddTemplateDlg>(L"Invoices")},
    {"template", IDD_EDIT_TEMPLATE, L"Template", showing<EditTemplateDlg>(invoices(), L"letter.kvd")},
    {"resourceFolder", IDD_RESOURCE_FOLDER, L"Folder", showing<EditResourceDlg>(invoices())},
    {"newResourceFile", IDD_ADD_RESOURCE_FILE, L"Add File", showing<EditResourceFileDlg>()},
    {"resourceFile", IDD_RENAME_RESOURCE_FILE, L"File", showing<EditFileDlg>(L"logo.svg", L"C:\\Invoices\\Images")},
    {"access", IDD_GRANT_ACCESS, L"Grant Access To", showing<AddTemplateUserDlg>(invoices())},
    {"newUser", IDD_ADD_USER, L"Add User", showing<AddUserDlg>()},
    {"user", IDD_EDIT_USER, L"Edit User", showing<EditUserDlg>(Tessaro::User())},
    {"guest", IDD_EDIT_USER, L"Edit User", showing<EditUserDlg>(true)},
    {"certificate", IDD_CERTIFICATE, L"Certificate", showCertificate},
    {"certificateFile", IDD_SELECT_CERTIFICATE_FILE, L"Select Certificate File", showing<SelectCertificateFile>()},
    {"password", IDD_ENTER_PASSWORD, L"Enter Password", showing<EnterPasswordDlg>()},
};

class DialogFit : public DialogTestBase, public testing::WithParamInterface<Case>
{
  protected:
    // Opens the dialog, looks at it and closes it with Escape.
    void lookAt(const std::function<void(HWND, const Controls&)>& look)
    {
        robot().dialog(GetParam().caption,
                       [&](ModalWindow& window)
                       {
                           look(window.handle(), Fit::controlsOf(window.handle()));
                           window.key(VK_ESCAPE);
                       });
        EXPECT_EQ(GetParam().show(frame()), IDCANCEL);
    }
};

TEST_P(DialogFit, hasANameForEveryControl)
{
    lookAt([](HWND, const Controls& controls) { EXPECT_EQ(Fit::faultsOfNames(controls), GetParam().names); });
}

TEST_P(DialogFit, isUsedInTheOrderThatItIsRead)
{
    lookAt(
        [](HWND dialog, const Controls& controls)
        {
            EXPECT_EQ(Fit::faultsOfOrder(dialog, controls), Faults());
            EXPECT_EQ(LOWORD(SendMessageW(dialog, DM_GETDEFID, 0, 0)), IDOK);
        });
}

TEST_P(DialogFit, hasMnemonicsOfItsOwn)
{
    lookAt([](HWND, const Controls& controls) { EXPECT_EQ(Fit::faultsOfMnemonics(controls), GetParam().mnemonics); });
}

TEST_P(DialogFit, hasRoomForItsTexts)
{
    lookAt([](HWND dialog, const Controls& controls)
           { EXPECT_EQ(Fit::faultsOfRoom(dialog, controls, margin), Faults()); });
}

// Buttons of the common controls before version 6 do not know how large they want to be.
TEST_P(DialogFit, isDrawnWithVisualStyles)
{
    lookAt(
        [](HWND dialog, const Controls&)
        {
            SIZE ideal{};
            EXPECT_TRUE(Button_GetIdealSize(GetDlgItem(dialog, IDOK), &ideal));
        });
}

// Adds the dialog's number to a set of them.
BOOL CALLBACK collect(HMODULE, LPCWSTR, LPWSTR number, LONG_PTR numbers)
{
    reinterpret_cast<std::set<int>*>(numbers)->insert(static_cast<int>(reinterpret_cast<ULONG_PTR>(number)));
    return TRUE;
}

TEST(AllDialogs, areAmongThese)
{
    std::set<int> looked{IDD_WIZARD_TYPE, IDD_WIZARD_REQUEST_OPERATION, IDD_WIZARD_SUBJECT, IDD_WIZARD_REQUEST_FILE,
                         IDD_WIZARD_CERTIFICATE_FILE};
    for (const Case& dialog : dialogs)
    {
        looked.insert(dialog.resource);
    }
    std::set<int> present;
    EnumResourceNamesW(nullptr, RT_DIALOG, collect, reinterpret_cast<LONG_PTR>(&present));
    EXPECT_EQ(looked, present);
}

INSTANTIATE_TEST_SUITE_P(All, DialogFit, testing::ValuesIn(dialogs),
                         [](const testing::TestParamInfo<Case>& dialog) { return dialog.param.name; });

} // namespace
