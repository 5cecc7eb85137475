#include "OpensslCommand.h"
#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "brimlow/security/CertIterator.h"
#include "brimlow/system/AtomicFile.h"

#include <gmock/gmock.h>

#include <string_view>

using Core::String;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace
{

int countOf(std::string_view part, std::string_view text)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
    {
        ++count;
    }
    return count;
}

// Versions of the command differ in the blanks that they print.
std::string withoutBlanks(std::string text)
{
    std::erase(text, ' ');
    return text;
}

// What was made here, as the openssl command sees it.
class OpensslTest : public SecurityTest
{
  protected:
    // The certificate and key that were listed at index, as certificate.pem and key.pem.
    void exportPem(unsigned index)
    {
        m_store->open(true);
        m_store->exportPKCS12(index, m_openssl.path(L"export.p12"));
        m_openssl.run("pkcs12 -in export.p12 -passin pass: -nokeys -clcerts -out certificate.pem");
        m_openssl.run("pkcs12 -in export.p12 -passin pass: -nocerts -noenc -out key.pem");
    }

    void expectKeyFits()
    {
        const std::string publicKey = m_openssl.run("x509 -in certificate.pem -noout -pubkey");
        EXPECT_THAT(publicKey, StartsWith("-----BEGIN PUBLIC KEY-----"));
        EXPECT_EQ(publicKey, m_openssl.run("pkey -in key.pem -pubout"));
        EXPECT_THAT(m_openssl.run("pkey -in key.pem -check -noout"), HasSubstr("Key is valid"));
    }

    // The request in request.pem, answered by an authority in answer.p12 (a certificate without a key) and ca.pem.
    void answerRequest()
    {
        m_openssl.run(
            "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -noenc -keyout ca.key -out ca.pem -days 30 "
            "-subj '/O=Authority/CN=Test Authority'");
        m_openssl.run("x509 -req -in request.pem -CA ca.pem -CAkey ca.key -days 30 -copy_extensions copyall "
                      "-out answer.pem");
        m_openssl.run("pkcs12 -export -nokeys -in answer.pem -certfile ca.pem -out answer.p12 -passout pass:");
    }

    int keysInStore()
    {
        m_openssl.folder().write(L"store.p12", Core::IO::AtomicFile::read(keyStorePath()));
        m_openssl.folder().write(L"store.password", Core::IO::AtomicFile::read(keyStorePath() + L".password"));
        return countOf("BEGIN PRIVATE KEY",
                       m_openssl.run("pkcs12 -in store.p12 -passin file:store.password -nocerts -noenc"));
    }

    OpensslCommand m_openssl;
};

TEST_F(OpensslTest, ReadsASelfSignedCertificateAndItsKey)
{
    m_store->createPKCS12(infoFor(L"server.example.com"));
    exportPem(0);
    expectKeyFits();
    EXPECT_THAT(m_openssl.run("verify -CAfile certificate.pem -purpose sslserver -verify_hostname server.example.com "
                              "certificate.pem"),
                HasSubstr("certificate.pem: OK"));
    EXPECT_EQ("subject=C=CH,ST=Bern,L=Thun,street=Main Street 7,postalCode=3600,O=Brimlow Ltd,OU=Rendering,"
              "CN=server.example.com,emailAddress=admin@example.com\n",
              m_openssl.run("x509 -in certificate.pem -noout -subject -nameopt dn_rev,RFC2253,-dn_rev"));
    const auto certificate = Security::CertIterator(*m_store).getNext();
    EXPECT_EQ("serial=" + certificate->getSerialNumber().toUtf8() + "\n",
              m_openssl.run("x509 -in certificate.pem -noout -serial"));
}

TEST_F(OpensslTest, SeesWhatASelfSignedCertificateIsFor)
{
    m_store->createPKCS12(infoFor(L"server.example.com"));
    exportPem(0);
    const std::string text = m_openssl.run("x509 -in certificate.pem -noout -text");
    EXPECT_THAT(text, AllOf(HasSubstr("Version: 3"), HasSubstr("Public-Key: (3072 bit)"),
                            HasSubstr("Signature Algorithm: sha256WithRSAEncryption")));
    EXPECT_THAT(text,
                AllOf(HasSubstr("X509v3 Basic Constraints: critical\n                CA:FALSE"),
                      HasSubstr("X509v3 Key Usage: critical\n                Digital Signature, Key Encipherment\n"),
                      HasSubstr("X509v3 Extended Key Usage: \n                TLS Web Server Authentication\n"),
                      HasSubstr("X509v3 Subject Alternative Name: \n                DNS:server.example.com\n"),
                      HasSubstr("X509v3 Subject Key Identifier")));
}

TEST_F(OpensslTest, FindsASelfSignedCertificateValidFor825DaysFromNowOn)
{
    m_store->createPKCS12(infoFor(L"server.example.com"));
    exportPem(0);
    EXPECT_THAT(m_openssl.run("x509 -in certificate.pem -noout -checkend 0"), HasSubstr("will not expire"));
    EXPECT_THAT(m_openssl.run("verify -CAfile certificate.pem certificate.pem"), HasSubstr("OK"));
    // It started five minutes ago.
    EXPECT_THAT(m_openssl.run("x509 -in certificate.pem -noout -checkend " + std::to_string(824 * 86400)),
                HasSubstr("will not expire"));
    EXPECT_THAT(
        m_openssl.run("x509 -in certificate.pem -noout -checkend " + std::to_string(825 * 86400 - 200) + " || true"),
        HasSubstr("will expire"));
}

TEST_F(OpensslTest, SeesAnAddressAsAnAddress)
{
    m_store->createPKCS12(infoFor(L"192.168.0.1"));
    exportPem(0);
    EXPECT_THAT(m_openssl.run("x509 -in certificate.pem -noout -ext subjectAltName"),
                HasSubstr("IP Address:192.168.0.1\n"));
    EXPECT_THAT(m_openssl.run("verify -CAfile certificate.pem -verify_ip 192.168.0.1 certificate.pem"),
                HasSubstr("certificate.pem: OK"));
}

TEST_F(OpensslTest, ReadsValuesOfAnyScriptAndSigns)
{
    Security::CertificateInfo info = infoFor(L"server.example.com");
    info.setOrganizationName(L"O'Brien, \"Sons\" / Co. = 1+2");
    info.setState(L"\u041C\u043E\u0441\u043A\u0432\u0430 \u6771\u4EAC \U0001F511");
    info.setAddress(L"/CN=evil.example.com");
    m_store->createPKCS12(info);
    exportPem(0);
    const std::string subject =
        m_openssl.run("x509 -in certificate.pem -noout -subject -nameopt multiline,utf8,-esc_msb,-align");
    EXPECT_THAT(subject, AllOf(HasSubstr("organizationName = O'Brien, \"Sons\" / Co. = 1+2\n"),
                               HasSubstr("stateOrProvinceName = " + info.getState().toUtf8() + "\n"),
                               HasSubstr("streetAddress = /CN=evil.example.com\n")));
}

TEST_F(OpensslTest, FindsAnExportedFileEncryptedInTheFormsOfToday)
{
    m_store->importPKCS12(corpusFile(L"rc2"));
    exportPem(0);
    expectKeyFits();
    const std::string text = m_openssl.run("pkcs12 -in export.p12 -passin pass: -info -noout");
    EXPECT_THAT(text, HasSubstr("MAC: sha256, Iteration 2048\n"));
    EXPECT_THAT(text,
                HasSubstr("PKCS7 Encrypted data: PBES2, PBKDF2, AES-256-CBC, Iteration 2048, PRF hmacWithSHA256"));
    EXPECT_THAT(text, HasSubstr("Shrouded Keybag: PBES2, PBKDF2, AES-256-CBC, Iteration 2048, PRF hmacWithSHA256"));
}

TEST_F(OpensslTest, FindsTheIssuersInAnExportedFile)
{
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->importPKCS12(corpusFile(L"rsa"));
    exportPem(1);
    expectKeyFits();
    m_openssl.run("pkcs12 -in export.p12 -passin pass: -nokeys -cacerts -out issuers.pem");
    const std::string issuers = withoutBlanks(m_openssl.run("storeutl -noout -text -certs issuers.pem"));
    EXPECT_EQ(2, countOf("Certificate:\n", issuers));
    EXPECT_LT(issuers.find("Subject:O=Brimlow,CN=intermediate.example.com"),
              issuers.find("Subject:O=Brimlow,CN=root.example.com"));
    EXPECT_THAT(m_openssl.run("verify -CAfile issuers.pem certificate.pem"), HasSubstr("certificate.pem: OK"));
}

TEST_F(OpensslTest, ReadsTheKeyStoreItself)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->createPKCS12Request(infoFor(L"server.example.com"));
    EXPECT_EQ(3, keysInStore());
    const std::string certificates = m_openssl.run("pkcs12 -in store.p12 -passin file:store.password -nokeys -clcerts");
    EXPECT_EQ(2, countOf("BEGIN CERTIFICATE", certificates));
    EXPECT_THAT(m_openssl.run("pkcs12 -in store.p12 -passin file:store.password -info -noout"),
                AllOf(HasSubstr("AES-256-CBC"), Not(HasSubstr("\nKey bag")), HasSubstr("MAC: sha256")));
}

TEST_F(OpensslTest, VerifiesARequest)
{
    m_openssl.folder().write(L"request.pem", m_store->createPKCS12Request(infoFor(L"server.example.com")).toUtf8());
    const std::string text = m_openssl.run("req -in request.pem -noout -verify -text");
    EXPECT_THAT(text, HasSubstr("verify OK"));
    EXPECT_THAT(text, AllOf(HasSubstr("Public-Key: (3072 bit)"), HasSubstr("sha256WithRSAEncryption"),
                            HasSubstr("DNS:server.example.com\n"), HasSubstr("TLS Web Server Authentication")));
    EXPECT_THAT(withoutBlanks(text), HasSubstr("CN=server.example.com,emailAddress=admin@example.com"));
}

TEST_F(OpensslTest, AnswersARequestAndTheAnswerIsJoinedWithItsKey)
{
    m_store->createPKCS12Request(infoFor(L"another.example.com"));
    m_openssl.folder().write(L"request.pem", m_store->createPKCS12Request(infoFor(L"server.example.com")).toUtf8());
    answerRequest();
    m_store->importPKCS12(m_openssl.path(L"answer.p12"));
    EXPECT_THAT(stored(), ElementsAre(L"server.example.com"));
    EXPECT_EQ(L"Test Authority", Security::CertIterator(*m_store).getNext()->getIssuerCN());
    exportPem(0);
    expectKeyFits();
    m_openssl.run("pkcs12 -in export.p12 -passin pass: -nokeys -cacerts -out issuers.pem");
    EXPECT_THAT(m_openssl.run("verify -CAfile issuers.pem -verify_hostname server.example.com certificate.pem"),
                HasSubstr("certificate.pem: OK"));
    // The other request still waits, this one does not.
    EXPECT_EQ(2, keysInStore());
    m_store->deleteIdentity(0);
    EXPECT_EQ(1, keysInStore());
    EXPECT_THAT(refusal([&] { m_store->importPKCS12(m_openssl.path(L"answer.p12")); }).toUtf8(),
                HasSubstr("without its private key"));
}

TEST_F(OpensslTest, AnswersARequestWhoseKeyTheAdministratorKeptElsewhereToo)
{
    m_openssl.folder().write(L"request.pem", m_store->createPKCS12Request(infoFor(L"server.example.com")).toUtf8());
    EXPECT_EQ(1, keysInStore());
    m_openssl.run("pkcs12 -in store.p12 -passin file:store.password -nocerts -noenc -out waiting.key");
    answerRequest();
    m_openssl.run("pkcs12 -export -in answer.pem -inkey waiting.key -out whole.p12 -passout pass:");
    m_store->importPKCS12(m_openssl.path(L"whole.p12"));
    // The key came with the certificate; the one that waited for it is not kept besides.
    EXPECT_EQ(1, keysInStore());
    m_store->open(true);
    m_store->deleteIdentity(0);
    EXPECT_EQ(0, keysInStore());
}

TEST_F(OpensslTest, SeesNothingAfterTheLastCertificateIsRemoved)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->open(true);
    m_store->deleteIdentity(0);
    EXPECT_EQ(0, keysInStore());
    EXPECT_THAT(m_openssl.run("pkcs12 -in store.p12 -passin file:store.password -nokeys"),
                Not(HasSubstr("BEGIN CERTIFICATE")));
    EXPECT_THAT(stored(), IsEmpty());
}

} // namespace
