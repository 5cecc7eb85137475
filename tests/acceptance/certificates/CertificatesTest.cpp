#include "certificates/CertificatesTest.h"

#include <brimlow/security/CertIterator.h>
#include <brimlow/security/CertStore.h>

namespace Acceptance
{
namespace
{

const std::filesystem::path documents = L"C:\\CertificateDocuments";

} // namespace

void CertificatesTest::SetUp()
{
    ConsoleTest::SetUp();
    std::filesystem::remove_all(documents);
    std::filesystem::create_directory(documents);
}

void CertificatesTest::TearDown()
{
    ConsoleTest::TearDown();
    std::filesystem::remove_all(documents);
}

void CertificatesTest::remove(unsigned index)
{
    const auto store = Security::CertStore::getCertStoreInstance();
    store->open(true);
    store->deleteIdentity(index);
}

std::vector<std::vector<std::wstring>> CertificatesTest::stored()
{
    const auto store = Security::CertStore::getCertStoreInstance();
    store->open(true);
    Security::CertIterator certificates(*store);
    std::vector<std::vector<std::wstring>> all;
    while (const auto certificate = certificates.getNext())
    {
        all.push_back({certificate->getSerialNumber().str(), certificate->getIssuerCN().str(),
                       certificate->getSubjectCN().str()});
    }
    return all;
}

std::filesystem::path CertificatesTest::keyStore()
{
    return ServerFiles::folder() / L"KeyStore" / L"KeyStore.p12";
}

std::filesystem::path CertificatesTest::document(const std::wstring& name)
{
    return documents / name;
}

SubjectEntries CertificatesTest::entries()
{
    return {
        {300, L"CertInfo-OrgName", "O", L"Print, \"Mail\" & Söhne"},
        {301, L"CertInfo-OrgDepartment", "OU", L"文書 / مستندات = Документы"},
        {302, L"CertInfo-CommonName", "CN", L"render.example.com"},
        {303, L"CertInfo-Country", "C", L"FR"},
        {306, L"CertInfo-Address", "street", L"12, rue de l'Église; <n> + \\ #"},
        {305, L"CertInfo-State", "ST", L"Île-de-France"},
        {304, L"CertInfo-City", "L", L"Łódź \U0001F3E0"},
        {307, L"CertInfo-Zip", "postalCode", L"75/001"},
        {308, L"CertInfo-Email", "emailAddress", L"a+b=c@example.com"},
    };
}

void CertificatesTest::typeSubject(ModalWindow& page, const SubjectEntries& entries)
{
    for (const SubjectEntry& entry : entries)
    {
        page.type(entry.control, entry.text);
    }
}

std::vector<std::wstring> CertificatesTest::texts(const ModalWindow& page, const SubjectEntries& entries)
{
    std::vector<std::wstring> texts;
    for (const SubjectEntry& entry : entries)
    {
        texts.push_back(page.text(entry.control));
    }
    return texts;
}

std::vector<std::wstring> CertificatesTest::remembered()
{
    std::vector<std::wstring> values;
    for (const SubjectEntry& entry : entries())
    {
        values.push_back(ServerFiles::setting(entry.key).value_or(L""));
    }
    return values;
}

void CertificatesTest::wizard(const wchar_t* caption, std::function<void(WizardWindow&)> use,
                              std::source_location where)
{
    robot.dialog(
        caption,
        [use = std::move(use)](ModalWindow& window)
        {
            WizardWindow sheet(window);
            use(sheet);
        },
        Owner::frame, where);
}

void CertificatesTest::lookAndCancel(const wchar_t* caption, std::function<void(WizardWindow&)> look,
                                     std::source_location where)
{
    wizard(
        caption,
        [look = std::move(look)](WizardWindow& wizard)
        {
            look(wizard);
            wizard.press(IDCANCEL);
        },
        where);
}

void CertificatesTest::toRequestOperation(WizardWindow& wizard)
{
    wizard.page().setChecked(CertificateWizard::issuedByAuthority, true);
    wizard.click(WizardWindow::next);
}

void CertificatesTest::toSubjectOfRequest(WizardWindow& wizard)
{
    toRequestOperation(wizard);
    wizard.click(WizardWindow::next);
}

void CertificatesTest::toRequestFile(WizardWindow& wizard)
{
    toSubjectOfRequest(wizard);
    ModalWindow page = wizard.page();
    typeSubject(page, entries());
    wizard.click(WizardWindow::next);
}

void CertificatesTest::toCertificateFile(WizardWindow& wizard)
{
    toRequestOperation(wizard);
    wizard.page().setChecked(CertificateWizard::processAnswer, true);
    wizard.click(WizardWindow::next);
}

void CertificatesTest::error(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = L"Error", .icon = MB_ICONERROR}, where);
}

void CertificatesTest::wizardError(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = L"Import Certificate", .icon = MB_ICONERROR}, where);
}

void CertificatesTest::pageError(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = L"Error", .icon = MB_ICONERROR, .owner = Owner::dialog}, where);
}

} // namespace Acceptance
