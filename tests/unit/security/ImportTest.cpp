#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "Pkcs12Import.h"

#include "brimlow/security/PasswordException.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>
#include <ostream>
#include <utility>

using Core::String;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

struct File
{
    const wchar_t* name;
    const wchar_t* password;
    const wchar_t* subject;
};

std::ostream& operator<<(std::ostream& stream, const File& file)
{
    return stream << String(file.name).toUtf8();
}

// All that the openssl command wrote: kinds of keys, ciphers of today and of former times, with and without password.
const File files[] = {
    {L"rsa", L"", L"rsa.example.com"},
    {L"rsa-secret", L"secret", L"rsa.example.com"},
    {L"ec", L"", L"ec.example.com"},
    {L"ec-secret", L"secret", L"ec.example.com"},
    {L"ed25519", L"", L"ed25519.example.com"},
    {L"chain", L"", L"chain.example.com"},
    {L"chain-secret", L"secret", L"chain.example.com"},
    {L"rc2", L"", L"rsa.example.com"},
    {L"rc2-secret", L"secret", L"rsa.example.com"},
    {L"3des", L"", L"ec.example.com"},
    {L"3des-secret", L"secret", L"ec.example.com"},
    {L"plain", L"", L"ec.example.com"},
    {L"plain-without-mac", L"", L"chain.example.com"},
    {L"without-mac", L"", L"ec.example.com"},
    {L"without-mac-3des", L"", L"ec.example.com"},
    {L"without-mac-secret", L"secret", L"ec.example.com"},
    {L"rounds", L"", L"ec.example.com"},
    {L"rounds-without-mac", L"", L"ec.example.com"},
    {L"umlauts", L"Gr\u00FC\u00DFe", L"ec.example.com"},
    {L"umlauts-3des", L"Gr\u00FC\u00DFe", L"ec.example.com"},
    {L"emoji", L"\U0001F511", L"ec.example.com"},
    {L"emoji-3des", L"\U0001F511", L"ec.example.com"},
};

class ImportOfFile : public SecurityTest, public testing::WithParamInterface<File>
{
  protected:
    const File& file() const { return GetParam(); }
    bool needsPassword() const { return *file().password != L'\0'; }
};

INSTANTIATE_TEST_SUITE_P(Corpus, ImportOfFile, testing::ValuesIn(files));

TEST_P(ImportOfFile, Succeeds)
{
    if (needsPassword())
    {
        m_store->importPKCS12(corpusFile(file().name), file().password);
    }
    else
    {
        m_store->importPKCS12(corpusFile(file().name));
    }
    EXPECT_THAT(stored(), ElementsAre(file().subject));
}

TEST_P(ImportOfFile, IsRefusedWithAnotherPassword)
{
    // Where nothing is encrypted or protected, any password opens the file.
    if (String(file().name) == L"plain-without-mac")
    {
        m_store->importPKCS12(corpusFile(file().name), L"another");
        EXPECT_THAT(stored(), ElementsAre(file().subject));
        return;
    }
    try
    {
        m_store->importPKCS12(corpusFile(file().name), L"another");
        FAIL() << "accepted";
    }
    catch (const Security::PasswordException& exception)
    {
        EXPECT_EQ(L"The password does not open the file \"" + corpusFile(file().name) + L"\".", exception.getMessage());
    }
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_P(ImportOfFile, AsksForAPasswordWhereThereIsOne)
{
    const auto import = [&] { m_store->importPKCS12(corpusFile(file().name)); };
    if (needsPassword())
    {
        EXPECT_THROW(import(), Security::PasswordException);
        EXPECT_EQ(L"The file \"" + corpusFile(file().name) + L"\" needs a password.", refusal(import));
        EXPECT_THAT(stored(), IsEmpty());
    }
    else
    {
        EXPECT_EQ(L"accepted", refusal(import));
    }
}

using ImportTest = SecurityTest;

TEST_F(ImportTest, AnEmptyPasswordIsTheSameAsNone)
{
    m_store->importPKCS12(corpusFile(L"3des"), L"");
    EXPECT_THROW(m_store->importPKCS12(corpusFile(L"ec-secret"), L""), Security::PasswordException);
}

TEST_F(ImportTest, ACertificateIsStoredOnce)
{
    m_store->importPKCS12(corpusFile(L"ec"));
    const String sentence = L"The certificate in the file \"" + corpusFile(L"3des") + L"\" is installed already.";
    EXPECT_EQ(sentence, refusal([&] { m_store->importPKCS12(corpusFile(L"3des")); }));
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com"));
}

TEST_F(ImportTest, ACertificateWithoutItsKeyIsRefused)
{
    EXPECT_EQ(L"The file \"" + corpusFile(L"certificate-only") +
                  L"\" holds a certificate without its private key, and no certificate request that was made here "
                  L"waits for it. Please import a file that holds the private key too.",
              refusal([&] { m_store->importPKCS12(corpusFile(L"certificate-only")); }));
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(ImportTest, AKeyWithoutACertificateIsRefused)
{
    EXPECT_EQ(L"The file \"" + corpusFile(L"key-only") + L"\" holds no certificate.",
              refusal([&] { m_store->importPKCS12(corpusFile(L"key-only")); }));
}

TEST_F(ImportTest, AKindOfKeyThatServersDoNotUseIsRefused)
{
    EXPECT_EQ(L"The file \"" + corpusFile(L"dsa") +
                  L"\" is encrypted, or holds a private key, in a way that is not supported. Please have it made again "
                  L"with AES-256, and an RSA or elliptic-curve key.",
              refusal([&] { m_store->importPKCS12(corpusFile(L"dsa")); }));
}

TEST_F(ImportTest, ARenewedCertificateIsJoinedWithTheKeyOfTheOldOne)
{
    m_store->importPKCS12(corpusFile(L"ec"));
    m_store->importPKCS12(corpusFile(L"renewed"));
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com", L"renewed.example.com"));
    // The key stays with the new one when the old one goes.
    m_store->deleteIdentity(0);
    m_store->open(true);
    m_store->exportPKCS12(0, m_folder.path(L"renewed.p12"));
    m_store->deleteIdentity(0);
    m_store->importPKCS12(m_folder.path(L"renewed.p12"));
    EXPECT_THAT(stored(), ElementsAre(L"renewed.example.com"));
}

TEST_F(ImportTest, EveryCertificateOfAFileIsStored)
{
    m_store->importPKCS12(corpusFile(L"chain"));
    m_store->importPKCS12(corpusFile(L"rsa"));
    m_store->importPKCS12(corpusFile(L"ec"));
    Security::KeyStore all{Security::Secret()};
    for (const wchar_t* name : {L"rsa", L"chain", L"ed25519"})
    {
        const Security::Secret none;
        Security::Pkcs12Import(corpusContent(name), none).into(all);
    }
    m_folder.write(L"all.p12", all.toFile());
    m_store->importPKCS12(m_folder.path(L"all.p12"));
    EXPECT_THAT(stored(),
                ElementsAre(L"chain.example.com", L"rsa.example.com", L"ec.example.com", L"ed25519.example.com"));
}

TEST_F(ImportTest, WhatIsNoPkcs12FileIsRefused)
{
    const std::string certificate = corpusContent(L"ec");
    for (const std::string& content : {std::string(), std::string("-----BEGIN CERTIFICATE-----"), std::string(5, '\0'),
                                       std::string("\x30\x80"), certificate.substr(1)})
    {
        m_folder.write(L"a.p12", content);
        EXPECT_EQ(L"The file \"" + m_folder.path(L"a.p12") +
                      L"\" is no PKCS #12 file. Please choose a file that an authority or an export made (*.pfx, "
                      L"*.p12).",
                  refusal([&] { m_store->importPKCS12(m_folder.path(L"a.p12")); }));
    }
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(ImportTest, AHugeFileIsRefusedUnread)
{
    m_folder.write(L"huge.p12", corpusContent(L"ec"));
    std::filesystem::resize_file(m_folder.folder() / "huge.p12", 100'000'000);
    EXPECT_EQ(L"The file \"" + m_folder.path(L"huge.p12") +
                  L"\" is too large for a certificate file: at most 10 MB are read.",
              refusal([&] { m_store->importPKCS12(m_folder.path(L"huge.p12")); }));
}

TEST_F(ImportTest, WhatFollowsTheContentUpToTheLargestSizeDoesNotMatter)
{
    constexpr std::uintmax_t largest = 10'485'760;
    m_folder.write(L"large.p12", corpusContent(L"ec"));
    std::filesystem::resize_file(m_folder.folder() / "large.p12", largest);
    m_store->importPKCS12(m_folder.path(L"large.p12"));
    EXPECT_THAT(stored(), ElementsAre(L"ec.example.com"));
    std::filesystem::resize_file(m_folder.folder() / "large.p12", largest + 1);
    EXPECT_THAT(refusal([&] { m_store->importPKCS12(m_folder.path(L"large.p12")); }).toUtf8(),
                testing::HasSubstr("too large"));
}

TEST_F(ImportTest, AFileThatIsMissingOrAFolderIsNamed)
{
    EXPECT_EQ(L"The file \"" + m_folder.path(L"missing.p12") + L"\" does not exist.",
              refusal([&] { m_store->importPKCS12(m_folder.path(L"missing.p12")); }));
    std::filesystem::create_directory(m_folder.folder() / "folder.p12");
    EXPECT_THAT(refusal([&] { m_store->importPKCS12(m_folder.path(L"folder.p12")); }).toUtf8(),
                testing::HasSubstr(m_folder.path(L"folder.p12").toUtf8()));
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(ImportTest, AFileWhoseContentIsNoneIsDamaged)
{
    std::string content = corpusContent(L"plain-without-mac");
    // Behind the identifier of data, and two marks with their lengths, begins the list of what is inside.
    const std::size_t list = content.find("\x06\x09\x2A\x86\x48\x86\xF7\x0D\x01\x07\x01") + 11 + 8;
    ASSERT_EQ('\x30', content.at(list));
    content.at(list) = '\x31';
    m_folder.write(L"damaged.p12", content);
    EXPECT_EQ(L"The file \"" + m_folder.path(L"damaged.p12") + L"\" is damaged. Please have it made or copied again.",
              refusal([&] { m_store->importPKCS12(m_folder.path(L"damaged.p12")); }));
    EXPECT_THAT(stored(), IsEmpty());
}

// The file with another number of rounds in its first, second, … part.
std::string withRounds(const wchar_t* name, std::size_t part, unsigned rounds)
{
    std::string content = corpusContent(name);
    const std::string usual("\x02\x03\x01\x11\x70", 5); // INTEGER 70000
    std::size_t at = content.find(usual);
    for (; part > 1; --part)
    {
        at = content.find(usual, at + usual.size());
    }
    content.at(at + 2) = static_cast<char>(rounds >> 16);
    content.at(at + 3) = static_cast<char>(rounds >> 8);
    content.at(at + 4) = static_cast<char>(rounds);
    return content;
}

TEST_F(ImportTest, TooManyRoundsOfKeyDerivationAreRefusedWhereverTheyAre)
{
    const std::pair<const char*, std::string> slow[] = {
        {"certificates", withRounds(L"rounds-without-mac", 1, 3'000'001)},
        {"key", withRounds(L"rounds-without-mac", 2, 3'000'001)},
        {"protection against changes", withRounds(L"rounds", 3, 3'000'001)},
    };
    for (const auto& [part, content] : slow)
    {
        SCOPED_TRACE(part);
        m_folder.write(L"slow.p12", content);
        EXPECT_EQ(L"The file \"" + m_folder.path(L"slow.p12") +
                      L"\" would take too long to read. Please have it made again with fewer rounds of key derivation.",
                  refusal([&] { m_store->importPKCS12(m_folder.path(L"slow.p12")); }));
    }
    EXPECT_THAT(stored(), IsEmpty());
}

} // namespace
