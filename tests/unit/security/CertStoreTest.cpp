#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "brimlow/security/CertIterator.h"
#include "brimlow/system/Exception.h"

#include <gmock/gmock.h>

#include <filesystem>

using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

using CertStoreTest = SecurityTest;

TEST_F(CertStoreTest, IsOneForTheProcess)
{
    EXPECT_EQ(m_store, Security::CertStore::getCertStoreInstance());
}

TEST_F(CertStoreTest, WithoutAKeyStoreItIsEmptyAndReadingMakesNone)
{
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(toPath(keyStorePath()).parent_path()));
}

TEST_F(CertStoreTest, TheOrderIsThatOfStoring)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->createPKCS12(infoFor(L"new.example.com"));
    m_store->importPKCS12(corpusFile(L"ed25519"));
    EXPECT_THAT(stored(),
                ElementsAre(L"rsa.example.com", L"ec.example.com", L"new.example.com", L"ed25519.example.com"));
}

TEST_F(CertStoreTest, ChangesDoNotChangeWhatWasRead)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    EXPECT_THAT(listed(), IsEmpty());
    m_store->open(false);
    EXPECT_THAT(listed(), IsEmpty());
    m_store->open(true);
    EXPECT_THAT(listed(), ElementsAre(L"rsa.example.com"));
    m_store->deleteIdentity(0);
    EXPECT_THAT(listed(), ElementsAre(L"rsa.example.com"));
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(CertStoreTest, ARoundOverTheCertificatesEndsWithNullAndStaysThere)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->open(true);
    Security::CertIterator iterator(*m_store);
    m_store->deleteIdentity(0);
    m_store->open(true);
    EXPECT_EQ(L"rsa.example.com", iterator.getNext()->getSubjectCN());
    EXPECT_FALSE(iterator.getNext());
    EXPECT_FALSE(iterator.getNext());
}

TEST_F(CertStoreTest, ACertificateIsDescribed)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->open(true);
    const auto certificate = Security::CertIterator(*m_store).getNext();
    EXPECT_EQ(L"chain.example.com", certificate->getSubjectCN());
    EXPECT_EQ(L"intermediate.example.com", certificate->getIssuerCN());
    // As "openssl x509 -serial -fingerprint -sha256" tells.
    EXPECT_EQ(L"4049BDD59DC98A7B92E24E6AECFBDA6A7C561A04", certificate->getSerialNumber());
    EXPECT_EQ("A9C8434EAFA9075FA83739AE311D377BA52C6B61BAB6684EC9E916471758A569", certificate->getFingerprint());
}

TEST_F(CertStoreTest, RemovesTheCertificateAtAnIndex)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->importPKCS12(corpusFile(L"ed25519"));
    m_store->open(true);
    m_store->deleteIdentity(0);
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com", L"ed25519.example.com"));
    m_store->deleteIdentity(1);
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com"));
}

TEST_F(CertStoreTest, AnIndexMeansWhatWasListedWhateverAnotherConsoleDid)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->open(true);
    const Security::SmartPtr<Security::CertStore> otherConsole(new Security::CertStore);
    otherConsole->open(true);
    otherConsole->deleteIdentity(0);
    m_store->open(false);
    m_store->deleteIdentity(1);
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(CertStoreTest, ACertificateThatIsGoneIsNeitherRemovedNorExported)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->open(true);
    m_store->deleteIdentity(0);
    const String gone =
        L"The certificate of \"chain.example.com\" with the serial number 4049BDD59DC98A7B92E24E6AECFBDA6A7C561A04 "
        L"is not in the key store \"" +
        keyStorePath() + L"\" any more. Please refresh the list.";
    EXPECT_EQ(gone, refusal([&] { m_store->deleteIdentity(0); }));
    EXPECT_EQ(gone, refusal([&] { m_store->exportPKCS12(0, m_folder.path(L"gone.p12")); }));
    EXPECT_THAT(m_folder.names(), IsEmpty());
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com"));
}

TEST_F(CertStoreTest, AnIndexBehindTheLastIsRefused)
{
    const String sentence = L"There is no such certificate in the list any more. Please refresh the list.";
    EXPECT_EQ(sentence, refusal([&] { m_store->deleteIdentity(0); }));
    EXPECT_EQ(sentence, refusal([&] { m_store->exportPKCS12(~0u, m_folder.path(L"none.p12")); }));
}

TEST_F(CertStoreTest, FindsByEveryNameThatIsGiven)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->open(true);
    const String serial = L"4049BDD59DC98A7B92E24E6AECFBDA6A7C561A04";
    const String issuer = L"intermediate.example.com";
    const std::string digest = fingerprint(1).toUtf8();
    EXPECT_EQ(L"chain.example.com", m_store->find(serial, issuer, "")->getSubjectCN());
    EXPECT_EQ(L"chain.example.com", m_store->find(serial, issuer, digest)->getSubjectCN());
    EXPECT_FALSE(m_store->find(serial, L"rsa.example.com", ""));
    EXPECT_FALSE(m_store->find(L"01", issuer, ""));
    EXPECT_FALSE(m_store->find(serial, issuer, fingerprint(0).toUtf8()));
    EXPECT_FALSE(m_store->find(L"", L"", ""));
}

TEST_F(CertStoreTest, FindsWhatWasListed)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->open(true);
    m_store->deleteIdentity(0);
    EXPECT_TRUE(m_store->find(L"4049BDD59DC98A7B92E24E6AECFBDA6A7C561A04", L"intermediate.example.com", ""));
    m_store->open(true);
    EXPECT_FALSE(m_store->find(L"4049BDD59DC98A7B92E24E6AECFBDA6A7C561A04", L"intermediate.example.com", ""));
}

TEST_F(CertStoreTest, ANewStoreReadsTheKeyStoreByItself)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    const Security::SmartPtr<Security::CertStore> another(new Security::CertStore);
    another->open(false);
    EXPECT_EQ(L"rsa.example.com", Security::CertIterator(*another).getNext()->getSubjectCN());
    const Security::SmartPtr<Security::CertStore> unopened(new Security::CertStore);
    unopened->deleteIdentity(0);
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(CertStoreTest, AFailedReadingKeepsWhatWasReadBefore)
{
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->open(true);
    m_data.write(L"Brimlow/KeyStore/KeyStore.p12", "damaged");
    EXPECT_THROW(m_store->open(true), Core::Exception);
    EXPECT_THAT(listed(), ElementsAre(L"rsa.example.com"));
}

TEST_F(CertStoreTest, SelfSignedCertificatesDifferEvenForTheSameSubject)
{
    m_store->createPKCS12(infoFor(L"same.example.com"));
    m_store->createPKCS12(infoFor(L"same.example.com"));
    EXPECT_THAT(stored(), ElementsAre(L"same.example.com", L"same.example.com"));
    EXPECT_NE(fingerprint(0), fingerprint(1));
    m_store->deleteIdentity(0);
    const String kept = fingerprint(1);
    m_store->open(true);
    EXPECT_EQ(kept, fingerprint(0));
}

TEST_F(CertStoreTest, AValueThatNoCertificateHoldsIsRefusedBeforeAnythingIsStored)
{
    Security::CertificateInfo info = infoFor(L"server.example.com");
    info.setZip({});
    EXPECT_EQ(L"\"Zip Code\" is empty. Please enter it.", refusal([&] { m_store->createPKCS12(info); }));
    EXPECT_EQ(L"\"Zip Code\" is empty. Please enter it.", refusal([&] { m_store->createPKCS12Request(info); }));
    EXPECT_FALSE(std::filesystem::exists(toPath(keyStorePath())));
}

TEST_F(CertStoreTest, ARequestWaitsUnseen)
{
    const std::string request = m_store->createPKCS12Request(infoFor(L"server.example.com")).toUtf8();
    EXPECT_TRUE(request.starts_with("-----BEGIN CERTIFICATE REQUEST-----\n"));
    EXPECT_TRUE(request.ends_with("\n-----END CERTIFICATE REQUEST-----\n"));
    EXPECT_THAT(stored(), IsEmpty());
    EXPECT_TRUE(std::filesystem::exists(toPath(keyStorePath())));
}

} // namespace
