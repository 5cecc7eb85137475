#include "DialogTestBase.h"
#include "dialogContents.h"

#include "tmgmt/certificates/CertificateDlg.h"

namespace
{

using Acceptance::ModalWindow;
using TMgmt::CertificateDlg;

constexpr wchar_t caption[] = L"Certificate";
constexpr int issuer = 311;
constexpr int subject = 312;
constexpr int serialNumber = 313;

class CertificateDlgTest : public DialogTestBase
{
  protected:
    // Opens the dialog, looks at it and presses OK.
    void lookAt(const Security::Certificate::Fields& fields, const std::function<void(ModalWindow&)>& look)
    {
        const Security::Certificate certificate(fields);
        CertificateDlg dialog(certificate);
        robot().dialog(caption,
                       [&](ModalWindow& window)
                       {
                           look(window);
                           window.press(IDOK);
                       });
        EXPECT_EQ(dialog.show(frame()), IDOK);
    }
};

TEST_F(CertificateDlgTest, hasThreeFieldsThatCannotBeChangedAndOneButton)
{
    lookAt(
        {.issuerCN = L"An authority", .subjectCN = L"server.example", .serialNumber = L"0A1B", .fingerprint = {}},
        [](ModalWindow& window)
        {
            EXPECT_EQ(Acceptance::contentsOf(window.handle()), (std::vector<std::wstring>{
                                                                   L"-1 Button Properties",
                                                                   L"-1 Static Issuer By:",
                                                                   L"311 Edit An authority",
                                                                   L"-1 Static Issued To:",
                                                                   L"312 Edit server.example",
                                                                   L"-1 Static Serial Number:",
                                                                   L"313 Edit 0A1B",
                                                                   L"1 Button OK",
                                                               }));
            EXPECT_EQ(Acceptance::tabOrderOf(window.handle()), (std::vector<int>{issuer, subject, serialNumber, IDOK}));
            EXPECT_EQ(window.focus(), IDOK);
            for (const int field : {issuer, subject, serialNumber})
            {
                EXPECT_TRUE(window.readOnly(field)) << field;
                EXPECT_EQ(field == serialNumber, (GetWindowLongW(window.control(field), GWL_STYLE) & ES_MULTILINE) != 0)
                    << field;
            }
        });
}

TEST_F(CertificateDlgTest, showsEveryScriptAndWholeLongNumbers)
{
    const std::wstring name = L"Příliš, \"žluťoučký\" = 證書/شهادة & \U0001F512";
    const std::wstring number(4096, L'F');
    lookAt({.issuerCN = name, .subjectCN = name, .serialNumber = number, .fingerprint = {}},
           [&](ModalWindow& window)
           {
               EXPECT_EQ(window.text(issuer), name);
               EXPECT_EQ(window.text(subject), name);
               EXPECT_EQ(window.text(serialNumber), number);
           });
}

TEST_F(CertificateDlgTest, closesByEscape)
{
    const Security::Certificate certificate(Security::Certificate::Fields{});
    CertificateDlg dialog(certificate);
    robot().dialog(caption, [](ModalWindow& window) { window.key(VK_ESCAPE); });
    EXPECT_EQ(dialog.show(frame()), IDCANCEL);
}

} // namespace
