#pragma once

#include "certificates/Authority.h"
#include "certificates/installCertificates.h"
#include "kit/ConsoleTest.h"
#include "kit/WizardWindow.h"

namespace Acceptance
{

// Controls of the wizard's pages.
namespace CertificateWizard
{
inline constexpr int prepareRequest = 295;
inline constexpr int processAnswer = 296;
inline constexpr int browse = 298;
inline constexpr int file = 299;
inline constexpr int organization = 300;
inline constexpr int domain = 302;
inline constexpr int country = 303;
inline constexpr int selfSigned = 309;
inline constexpr int issuedByAuthority = 310;

inline constexpr wchar_t typeCaption[] = L"Select Certificate Type";
inline constexpr wchar_t operationCaption[] = L"Select Certificate Request Operation";
inline constexpr wchar_t subjectCaption[] = L"Generate Certificate";
inline constexpr wchar_t requestFileCaption[] = L"Certificate Request File Name";
inline constexpr wchar_t certificateFileCaption[] = L"Select Private Key File";
} // namespace CertificateWizard

// What the wizard asks for about whom a certificate is for: the control, the setting that remembers it, the name of the
// text in a certificate, and an example.
struct SubjectEntry
{
    int control;
    const wchar_t* key;
    const char* shortName;
    std::wstring text;
};
using SubjectEntries = std::vector<SubjectEntry>;

class CertificatesTest : public ConsoleTest
{
  protected:
    static constexpr wchar_t node[] = L"Server Certificates";
    static constexpr wchar_t install[] = L"&Install Certificate ...";
    static constexpr wchar_t uninstall[] = L"&Uninstall Certificate";
    static constexpr wchar_t exportCommand[] = L"&Export ...";
    static constexpr wchar_t properties[] = L"&Properties";

    void SetUp() override;
    void TearDown() override;

    // Another program removes the one at that place.
    static void remove(unsigned index);
    // What is stored: serial number, issuer, subject.
    static std::vector<std::vector<std::wstring>> stored();
    static std::filesystem::path keyStore();
    // A path in a folder for files that come and go; the folder is there.
    static std::filesystem::path document(const std::wstring& name);

    // Examples for everything the wizard asks for.
    static SubjectEntries entries();
    static void typeSubject(ModalWindow& page, const SubjectEntries& entries);
    // The texts that the page has for these entries.
    static std::vector<std::wstring> texts(const ModalWindow& page, const SubjectEntries& entries);
    // The settings that remember them; empty where there is none.
    static std::vector<std::wstring> remembered();

    // Opens the console and shows the node.
    void openNode(int views = 1) { openAt(node, views); }
    // The column that differs: who the certificates are for.
    std::vector<std::wstring> names(std::size_t view = 0) { return ConsoleTest::names(view, 2); }

    // The robot's next step: the wizard comes up, or is in front again, with that page.
    void wizard(const wchar_t* caption, std::function<void(WizardWindow&)> use,
                std::source_location where = std::source_location::current());
    // The same, and the step cancels it.
    void lookAndCancel(const wchar_t* caption, std::function<void(WizardWindow&)> look,
                       std::source_location where = std::source_location::current());
    void runWizard() { view().runNodeCommand(node, install); }

    // From the first page to others.
    static void toRequestOperation(WizardWindow& wizard);
    static void toSubjectOfRequest(WizardWindow& wizard);
    static void toRequestFile(WizardWindow& wizard);
    static void toCertificateFile(WizardWindow& wizard);

    // What the library refuses: in the list, and in the wizard.
    void error(const std::wstring& text, std::source_location where = std::source_location::current());
    void wizardError(const std::wstring& text, std::source_location where = std::source_location::current());
    // What a page of the wizard refuses.
    void pageError(const std::wstring& text, std::source_location where = std::source_location::current());
};

} // namespace Acceptance
