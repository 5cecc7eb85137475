#include "certificates/WizardPagesTest.h"
#include "dialogContents.h"

#include "kit/ImportSpy.h"
#include "kit/windows.h"

#include <prsht.h>

namespace
{

using Acceptance::ImportSpy;
using Acceptance::ModalWindow;
using Acceptance::WizardWindow;
using Contents = std::vector<std::wstring>;
using Ids = std::vector<int>;

// Proves: under the header "Certificate File Name" the page speaks of a private key, and its subtitle begins with
// "Your can".
// Proves: the subtitle ends in "distinguishes it from organizations".
TEST_F(WizardPagesTest, areFiveInTheirOrderWithTitlesAndSubtitles)
{
    struct Page
    {
        int resource;
        std::wstring title;
        std::wstring subtitle;
        DWORD flags;
        bool operator==(const Page&) const = default;
    };
    std::vector<Page> pages;
    DWORD flags = 0;
    HWND owner = nullptr;
    {
        ImportSpy<"PropertySheetW", decltype(PropertySheetW)> sheets(
            [&](LPCPROPSHEETHEADERW sheet)
            {
                flags = sheet->dwFlags;
                owner = sheet->hwndParent;
                for (UINT i = 0; i < sheet->nPages; ++i)
                {
                    const PROPSHEETPAGEW& page = sheet->ppsp[i];
                    pages.push_back({static_cast<int>(reinterpret_cast<ULONG_PTR>(page.pszTemplate)),
                                     page.pszHeaderTitle, page.pszHeaderSubTitle, page.dwFlags});
                }
                return sheets.callThrough(sheet);
            },
            nullptr);
        lookAt(L"Select Certificate Type", stay, [](WizardWindow&, ModalWindow&) {});
    }
    constexpr DWORD texts = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
    EXPECT_EQ(
        pages,
        (std::vector<Page>{
            {289, L"Server Certificate",
             L"There are two methods for assigning a certificate to this KV Rendering Server.", texts},
            {288, L"Certificate Request",
             L"You can generate a new Certificate Request, or you can import a Certification's Authority response.",
             texts},
            {294, L"Certificate Information",
             L"Your certificate must include information about your organization that distinguishes it from "
             L"organizations.",
             texts},
            {290, L"Certificate Request File Name",
             L"Your certificate request is saved as a text file with the file name you specify.", texts},
            {293, L"Certificate File Name", L"Your can import a certificate from a *.p12 or *.pfx file.", texts},
        }));
    EXPECT_EQ(flags & (PSH_WIZARD97 | PSH_HEADER), static_cast<DWORD>(PSH_WIZARD97 | PSH_HEADER));
    EXPECT_EQ(owner, frame());
}

TEST_F(WizardPagesTest, beginWithTheKindOfCertificate)
{
    lookAt(L"Select Certificate Type", stay,
           [](WizardWindow& sheet, ModalWindow& page)
           {
               EXPECT_EQ(Acceptance::contentsOf(page.handle()),
                         (Contents{L"309 Button &Self-signed certificate",
                                   L"310 Button &Certificate issued by a Certification Authority (CA)"}));
               EXPECT_TRUE(page.checked(selfSigned));
               EXPECT_FALSE(page.checked(issuedByAuthority));
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::next, IDCANCEL}));
           });
}

TEST_F(WizardPagesTest, askWhatToDoWithTheAuthority)
{
    lookAt(L"Select Certificate Request Operation", toRequestOperation,
           [](WizardWindow& sheet, ModalWindow& page)
           {
               EXPECT_EQ(Acceptance::contentsOf(page.handle()),
                         (Contents{L"295 Button &Prepare certificate request to send to a certification authority",
                                   L"296 Button Process pending request and install certificate"}));
               EXPECT_TRUE(page.checked(prepareRequest));
               EXPECT_FALSE(page.checked(processAnswer));
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::back, WizardWindow::next, IDCANCEL}));
           });
}

constexpr wchar_t subjectCaption[] = L"Generate Certificate";

TEST_F(WizardPagesTest, askWhomTheCertificateIsFor)
{
    lookAt(subjectCaption, toSubject,
           [](WizardWindow& sheet, ModalWindow& page)
           {
               EXPECT_EQ(Acceptance::contentsOf(page.handle()),
                         (Contents{L"-1 Static Enter this information carefully because otherwise the Certification "
                                   L"Authority may reject your request. Enter full names, not abbreviations.",
                                   L"-1 Static Organization &Name:",
                                   L"300 Edit ",
                                   L"-1 Static Organizational &Unit:",
                                   L"301 Edit ",
                                   L"-1 Static &Domain Name:",
                                   L"302 Edit ",
                                   L"-1 Static &Country Code:",
                                   L"303 Edit ",
                                   L"-1 Static (US=United States, FR=France, etc.)",
                                   L"-1 Static &Address:",
                                   L"306 Edit ",
                                   L"-1 Static &State/Province:",
                                   L"305 Edit ",
                                   L"-1 Static City/&Locality:",
                                   L"304 Edit ",
                                   L"-1 Static &Zip Code:",
                                   L"307 Edit ",
                                   L"-1 Static &Email Address:",
                                   L"308 Edit ",
                                   L"-1 Static All fields are required."}));
               EXPECT_EQ(Acceptance::tabOrderOf(page.handle()), (Ids{300, 301, 302, country, 306, 305, 304, 307, 308}));
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::back, WizardWindow::finish, IDCANCEL}));
           });
}

TEST_F(WizardPagesTest, takeTwoCapitalLettersForTheCountry)
{
    lookAt(subjectCaption, toSubject,
           [](WizardWindow&, ModalWindow& page)
           {
               page.type(country, L"deu");
               EXPECT_EQ(page.text(country), L"DE");
               page.type(300, L"deu");
               EXPECT_EQ(page.text(300), L"deu") << "the other fields are left as they are";
           });
}

TEST_F(WizardPagesTest, offerNextInPlaceOfFinishWhereTheAuthorityIsAsked)
{
    const auto walk = [](WizardWindow& sheet)
    {
        toRequestOperation(sheet);
        sheet.click(WizardWindow::next);
    };
    lookAt(subjectCaption, walk,
           [](WizardWindow& sheet, ModalWindow&) {
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::back, WizardWindow::next, IDCANCEL}));
           });
}

TEST_F(WizardPagesTest, askWhereTheRequestGoes)
{
    lookAt(L"Certificate Request File Name", toRequestFile,
           [](WizardWindow& sheet, ModalWindow& page)
           {
               EXPECT_EQ(Acceptance::contentsOf(page.handle()),
                         (Contents{L"-1 Static Enter a file name for the certificate request", L"-1 Static &File name:",
                                   L"299 Edit C:\\certrequest.txt", L"298 Button &Browse"}));
               EXPECT_EQ(Acceptance::tabOrderOf(page.handle()), (Ids{file, browse}));
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::back, WizardWindow::finish, IDCANCEL}));
           });
}

// The page speaks of a private key below a header that speaks of a certificate.
TEST_F(WizardPagesTest, askForTheFileThatTheAuthorityReturned)
{
    lookAt(L"Select Private Key File", toCertificateFile,
           [](WizardWindow& sheet, ModalWindow& page)
           {
               EXPECT_EQ(
                   Acceptance::contentsOf(page.handle()),
                   (Contents{L"-1 Static Enter a file name for the private key", L"299 Edit ", L"298 Button &Browse"}));
               EXPECT_EQ(Acceptance::tabOrderOf(page.handle()), (Ids{file, browse}));
               EXPECT_EQ(sheet.buttons(), (Ids{WizardWindow::back, WizardWindow::finish, IDCANCEL}));
           });
}

TEST_F(WizardPagesTest, takePathsOfMoreThan260Characters)
{
    const std::wstring path = L"C:\\" + std::wstring(300, L'x') + L".p12";
    lookAt(L"Select Private Key File", toCertificateFile,
           [&](WizardWindow&, ModalWindow& page)
           {
               page.type(file, path);
               EXPECT_EQ(page.text(file), path);
           });
}

} // namespace
