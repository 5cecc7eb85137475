#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "KeyStoreFile.h"
#include "Secret.h"
#include "passwordProtection.h"
#include "privateKey.h"

#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

using Security::Secret;
using testing::HasSubstr;
using testing::Not;

namespace
{

TEST(Secret, IsWipedWhereItWasTakenFrom)
{
    for (const std::size_t length : {8u, 100u})
    {
        std::string text(length, 'x');
        const Secret secret(static_cast<std::string&&>(text));
        EXPECT_EQ(std::string(length, 'x'), secret.get());
        EXPECT_TRUE(text.empty());
        // Its memory is still its own.
        EXPECT_EQ(std::string(length, '\0'), std::string(text.data(), length));
    }
}

TEST(Secret, IsRandomAndLongEnough)
{
    std::set<std::string> secrets;
    for (int count = 0; count < 100; ++count)
    {
        const Secret secret = Secret::random();
        EXPECT_EQ(64, secret.length());
        secrets.insert(secret.get());
    }
    EXPECT_EQ(100u, secrets.size());
}

TEST(Secret, MayBeEmpty)
{
    EXPECT_TRUE(Secret().empty());
    EXPECT_EQ(0, Secret().length());
    EXPECT_STREQ("", Secret().get());
    EXPECT_FALSE(Secret(std::string(1, '\0')).empty());
}

TEST(PasswordProtection, GivesThePasswordBack)
{
    const std::string kept = Security::protect(Secret(std::string("0123456789abcdef")));
    EXPECT_STREQ("0123456789abcdef", Security::unprotect(std::string(kept)).get());
#ifdef _WIN32
    EXPECT_THAT(kept, Not(HasSubstr("0123456789abcdef")));
    EXPECT_TRUE(refusal([] { Security::unprotect("0123456789abcdef"); })
                    .startsWith(L"Windows cannot decrypt the password of the key store: "));
    EXPECT_THROW(Security::unprotect(kept.substr(1)), Core::Exception);
#endif
}

using SecretsOnDisk = SecurityTest;

// The secret part of a private key, as it stands in every unencrypted form of it.
std::string secretOf(EVP_PKEY& key)
{
    BIGNUM* number = nullptr;
    EXPECT_EQ(1, EVP_PKEY_get_bn_param(&key, "priv", &number));
    std::string bytes(static_cast<std::size_t>(BN_num_bytes(number)), '\0');
    BN_bn2bin(number, reinterpret_cast<unsigned char*>(bytes.data()));
    BN_free(number);
    return bytes;
}

TEST_F(SecretsOnDisk, NoPrivateKeyIsInAnyFileOfTheKeyStore)
{
    m_store->importPKCS12(corpusFile(L"plain"));
    const Security::KeyStore store = Security::KeyStoreFile(keyStorePath()).read();
    const std::string secret = secretOf(*store.decryptKey(store.identities().front()));
    ASSERT_GT(secret.size(), 28u);
    EXPECT_THAT(corpusContent(L"plain"), HasSubstr(secret));
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(toPath(keyStorePath()).parent_path()))
    {
        EXPECT_THAT(Core::IO::AtomicFile::read(fromPath(entry.path())), Not(HasSubstr(secret))) << entry.path();
        ++files;
    }
    EXPECT_EQ(3, files);

    // Not even in an export, which anybody can decrypt.
    m_store->open(true);
    m_store->exportPKCS12(0, m_folder.path(L"export.p12"));
    EXPECT_THAT(m_folder.read(L"export.p12"), Not(HasSubstr(secret)));
}

TEST_F(SecretsOnDisk, ThePasswordOfTheKeyStoreIsInNoOtherFile)
{
    m_store->importPKCS12(corpusFile(L"plain"));
    m_store->open(true);
    m_store->exportPKCS12(0, m_folder.path(L"export.p12"));
    const Secret password = Security::unprotect(Core::IO::AtomicFile::read(keyStorePath() + L".password"));
    ASSERT_EQ(64, password.length());
    EXPECT_THAT(Core::IO::AtomicFile::read(keyStorePath()), Not(HasSubstr(password.get())));
    EXPECT_THAT(m_folder.read(L"export.p12"), Not(HasSubstr(password.get())));
}

} // namespace
