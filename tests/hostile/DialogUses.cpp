#include "DialogUses.h"

#include "DialogPlay.h"

#include "kit/WizardWindow.h"

#include <windows.h>

#include <ostream>

namespace Hostile
{
namespace
{

using Acceptance::WizardWindow;

constexpr int itself = DialogUse::itself;
constexpr wchar_t images[] = L"Server Templates\\Invoices\\Images";
constexpr wchar_t invoices[] = L"Server Templates\\Invoices";
constexpr wchar_t listener[] = L"Engine Settings\\Listener Configuration";
constexpr wchar_t encoder[] = L"Engine Settings\\AFP Encoder";
constexpr wchar_t certificates[] = L"Server Certificates";

// On each way through the certificate wizard the last page is refused, so that no key is made: that takes longer than
// everything else. Back to the first page from any other one.
const std::vector<Press> wizard{
    // A self-signed certificate, without a subject.
    {WizardWindow::next},
    {300, L""},
    {WizardWindow::finish},
    {WizardWindow::back},
    // A request to an authority, without a subject at first.
    {310},
    {WizardWindow::next},
    {WizardWindow::next},
    {300, L""},
    {WizardWindow::next},
    {300, L"Brimlow"},
    {301, L"Documents"},
    {302, L"one.example"},
    {303, L"GB"},
    {304, L"Oxford"},
    {305, L"Oxfordshire"},
    {306, L"1 High Street"},
    {307, L"OX1"},
    {308, L"one@one.example"},
    {WizardWindow::next},
    {298},
    {WizardWindow::back},
    {WizardWindow::back},
    // The answer of an authority: a file that there is not, and one whose password is not known.
    {296},
    {WizardWindow::next},
    {298},
    {299, L"C:\\there\\is\\none.p12"},
    {WizardWindow::finish},
    {299, DialogPlay::secretFile},
    {WizardWindow::finish},
    {314, L"not the same"},
    {IDOK},
    {IDCANCEL},
};

const std::vector<DialogUse> uses{
    {"textOfASetting", listener, 1, 1000, {{203, L"no port"}, {IDOK}}, {103}, 1, 1},
    {"choiceOfASetting", encoder, 1, 1000, {}, {104}, 1},
    {"switchOfASetting", encoder, 0, 1000, {}, {248}, 1},
    {"privateFont", L"Engine Settings\\Private Fonts", 0, 1044, {{232, L""}, {IDOK}, {237}}, {256}, 1, 1, 1},
    {"hotFolder",
     L"Hot Folders",
     0,
     1048,
     {{242}, {248}, {286}, {238}, {287}, {237}, {IDCANCEL}, {232, L""}, {IDOK}},
     {236, 1069},
     2,
     1,
     4},
    {"actionsOfAHotFolder",
     L"Hot Folders",
     0,
     1048,
     {{246}, {258}, {264}, {246}, {IDOK}, {259}, {IDCANCEL}},
     {236, 245, 246},
     3,
     1,
     1},
    {"application", L"Server Templates", itself, 1058, {{IDOK}}, {271}, 1, 1},
    {"newTemplate", invoices, itself, 1053, {{IDOK}, {275}}, {262}, 1, 1, 1},
    {"templateName", invoices, 0, 1052, {{284, L""}, {IDOK}}, {281}, 1, 1},
    {"resourceFolder", invoices, itself, 1060, {{IDOK}}, {273}, 1, 1},
    {"newResourceFile", images, itself, 1064, {{IDOK}, {282}}, {279}, 1, 1, 1},
    {"resourceFileName", images, 0, 1068, {{233, L""}, {IDOK}}, {276}, 1, 1},
    {"access", L"Server Templates\\Invoices\\Users", itself, 1057, {}, {269}, 1},
    {"newUser", L"Users", itself, 1054, {{IDOK}}, {267}, 1, 1},
    {"userWithMessageBox", L"Users", 1, 1055, {{233, L"a password"}, {IDOK}, {IDOK}}, {265}, 2, 1, 0, true},
    {"certificate", certificates, 0, 1015, {}, {282}, 1},
    {"exportedCertificate", certificates, 0, 1017, {}, {}, 0, 0, 1},
    {"certificateWizard", certificates, itself, 1012, wizard, {288, 289, 290, 292, 293, 294}, 2, 4, 2},
};

} // namespace

void PrintTo(const DialogUse& use, std::ostream* out)
{
    *out << use.name;
}

std::span<const DialogUse> dialogUses()
{
    return uses;
}

} // namespace Hostile
