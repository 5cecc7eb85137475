#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "KeyStoreFile.h"
#include "LockFile.h"
#include "Pkcs12Import.h"
#include "describe.h"
#include "passwordProtection.h"

#include "brimlow/system/Exception.h"
#include "brimlow/system/Process.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <future>
#include <map>
#include <memory>
#include <thread>

using Core::String;
using Security::KeyStore;
using Security::KeyStoreFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace
{

class KeyStoreFileTest : public testing::Test
{
  protected:
    void add(const wchar_t* name) const { addTo(m_file, name); }
    void addPatiently(const wchar_t* name) const { addTo(KeyStoreFile(m_path, std::chrono::hours(1)), name); }

    static void addTo(const KeyStoreFile& file, const wchar_t* name)
    {
        file.change(
            [&](KeyStore& store)
            {
                const Security::Secret none;
                Security::Pkcs12Import(corpusContent(name), none).into(store);
            });
    }

    std::vector<String> names() const
    {
        const KeyStore store = m_file.read();
        std::vector<String> names;
        for (const KeyStore::Identity& identity : store.identities())
        {
            names.push_back(Security::describe(*identity.certificate).subjectCN);
        }
        return names;
    }

    // Reading and changing are refused with the same sentence, and no file changes.
    void expectRefusal(const String& sentence) const
    {
        const auto before = contents();
        EXPECT_EQ(sentence, refusal([&] { names(); }));
        EXPECT_EQ(sentence, refusal([&] { add(L"ec"); }));
        EXPECT_EQ(before, contents());
    }

    std::map<String, std::string> contents() const
    {
        std::map<String, std::string> contents;
        for (const String& name : m_folder.names())
        {
            contents[name] = m_folder.read(name.str().c_str());
        }
        contents.erase(L"a.p12.lock");
        return contents;
    }

    TemporaryFolder m_folder;
    KeyStoreFile m_file{m_folder.path(L"a.p12"), std::chrono::milliseconds(0)};
    const String m_path = m_folder.path(L"a.p12");
    const String m_damaged = L"The key store \"" + m_path + L"\" is damaged. Please restore it from a backup.";
    const String m_otherPassword = L"The key store \"" + m_path +
                                   L"\" is damaged, or its password is not the one in \"" + m_path +
                                   L".password\". Please restore both files from the same backup.";
    const String m_noPassword = L"The key store \"" + m_path +
                                L"\" cannot be opened, because the file with its password, \"" + m_path +
                                L".password\", is missing or empty. Please restore both files from the same backup.";
};

TEST_F(KeyStoreFileTest, AMissingOneIsEmptyAndStaysMissingWhenItIsRead)
{
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(m_folder.names(), IsEmpty());
}

TEST_F(KeyStoreFileTest, KeepsItsPasswordBesideIt)
{
    add(L"ec");
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.p12", L"a.p12.lock", L"a.p12.password"));
    const std::string password = m_folder.read(L"a.p12.password");
    add(L"rsa");
    EXPECT_EQ(password, m_folder.read(L"a.p12.password"));
    EXPECT_THAT(names(), ElementsAre(L"ec.example.com", L"rsa.example.com"));
}

TEST_F(KeyStoreFileTest, ALockThatCannotBeOpenedIsNamed)
{
    EXPECT_TRUE(refusal([this] { const Security::LockFile lock(m_path); })
                    .startsWith(L"The file \"" + m_path + L"\" cannot be opened: "));
}

#ifdef _WIN32
TEST_F(KeyStoreFileTest, WithThePasswordOfAnotherMachineItIsRefusedAndNeverOverwritten)
{
    add(L"ec");
    m_folder.write(L"a.p12.password", "not what Windows encrypted");
    expectRefusal(L"The key store's password file \"" + m_path + L".password\" cannot be used on this machine. " +
                  refusal([] { Security::unprotect("not what Windows encrypted"); }) +
                  L" Please restore a backup of this machine.");
}
#endif

TEST_F(KeyStoreFileTest, ADamagedOneIsRefusedAndNeverOverwritten)
{
    add(L"ec");
    const std::string whole = m_folder.read(L"a.p12");
    for (const std::string& damaged : {std::string("x"), std::string(whole.size(), '\0'), whole.substr(1),
                                       whole.substr(0, whole.size() - 1), whole.substr(0, 100)})
    {
        m_folder.write(L"a.p12", damaged);
        expectRefusal(m_damaged);
    }
    std::string changed = whole;
    changed[whole.size() / 2] ^= 1;
    m_folder.write(L"a.p12", changed);
    expectRefusal(m_otherPassword);
}

TEST_F(KeyStoreFileTest, WithoutItsPasswordItIsRefusedAndNeverOverwritten)
{
    add(L"ec");
    m_folder.write(L"a.p12.password", "");
    expectRefusal(m_noPassword);
    fs::remove(m_folder.folder() / "a.p12.password");
    expectRefusal(m_noPassword);
}

TEST_F(KeyStoreFileTest, WithThePasswordOfAnotherOneItIsRefused)
{
    KeyStoreFile(m_folder.path(L"other.p12")).change([](KeyStore&) {});
    add(L"ec");
    m_folder.write(L"a.p12.password", m_folder.read(L"other.p12.password"));
    expectRefusal(m_otherPassword);
}

TEST_F(KeyStoreFileTest, WhatADeadProgramLeftOfTheFirstSaveIsFinished)
{
    add(L"ec");
    const std::string password = m_folder.read(L"a.p12.password");
    // An empty password file, a whole one, and a whole one with an empty key store.
    for (const auto& [passwordLeft, storeLeft] : {std::pair(std::string(), false), {password, false}, {password, true}})
    {
        fs::remove(m_folder.folder() / "a.p12");
        m_folder.write(L"a.p12.password", passwordLeft);
        if (storeLeft)
        {
            m_folder.write(L"a.p12", "");
        }
        EXPECT_THAT(names(), IsEmpty());
        add(L"rsa");
        EXPECT_THAT(names(), ElementsAre(L"rsa.example.com"));
        if (!passwordLeft.empty())
        {
            EXPECT_EQ(password, m_folder.read(L"a.p12.password"));
        }
    }
}

TEST_F(KeyStoreFileTest, AReadOnlyOneIsReadAndNotChanged)
{
    add(L"ec");
    fs::permissions(m_folder.folder() / "a.p12",
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EQ(L"The file \"" + m_path +
                  L"\" cannot be saved, because it is read-only. Remove its read-only attribute "
                  L"first.",
              refusal([&] { add(L"rsa"); }));
    EXPECT_THAT(names(), ElementsAre(L"ec.example.com"));
}

TEST_F(KeyStoreFileTest, AFolderOfItsNameIsRefused)
{
    fs::create_directory(m_folder.folder() / "a.p12");
    EXPECT_THAT(refusal([&] { add(L"ec"); }).toUtf8(), HasSubstr(m_path.toUtf8()));
}

TEST_F(KeyStoreFileTest, IsReadAndNotChangedWhileAnotherProgramChangesIt)
{
    add(L"ec");
    Security::LockFile otherProgram(m_path + L".lock");
    ASSERT_TRUE(otherProgram.tryToHold());
    EXPECT_EQ(L"The key store \"" + m_path + L"\" is in use by another program. Please try again.",
              refusal([&] { add(L"rsa"); }));
    EXPECT_THAT(names(), ElementsAre(L"ec.example.com"));
}

TEST_F(KeyStoreFileTest, AnotherProgramThatChangesItIsWaitedFor)
{
    add(L"ec");
    auto otherProgram = std::make_unique<Security::LockFile>(m_path + L".lock");
    ASSERT_TRUE(otherProgram->tryToHold());
    std::promise<void> begun;
    std::thread console(
        [&]
        {
            begun.set_value();
            addPatiently(L"rsa");
        });
    begun.get_future().wait();
    otherProgram.reset();
    console.join();
    EXPECT_THAT(names(), ElementsAre(L"ec.example.com", L"rsa.example.com"));
}

TEST_F(KeyStoreFileTest, ChangesAtTheSameTimeAreAllKept)
{
    std::vector<std::thread> consoles;
    for (const wchar_t* name : {L"ec", L"rsa", L"ed25519", L"chain"})
    {
        consoles.emplace_back([this, name] { addPatiently(name); });
    }
    for (std::thread& console : consoles)
    {
        console.join();
    }
    EXPECT_THAT(names(), testing::UnorderedElementsAre(L"ec.example.com", L"rsa.example.com", L"ed25519.example.com",
                                                       L"chain.example.com"));
}

TEST_F(KeyStoreFileTest, NothingIsStoredWhenTheChangeFails)
{
    add(L"ec");
    const auto before = contents();
    EXPECT_THROW(m_file.change(
                     [](KeyStore& store)
                     {
                         store.remove(Security::fingerprintOf(*store.identities().front().certificate));
                         throw Core::Exception(L"no");
                     }),
                 Core::Exception);
    EXPECT_EQ(before, contents());
}

// Where a machine has its key store.
class KeyStorePath : public testing::Test
{
  protected:
    String pathFor(const String& configured) const
    {
        const String value = configured.replaceAll(L"&", L"&amp;");
        m_data.write(L"Brimlow/TSvc.config", (L"<configuration><appSettings><add key=\"KeystoreFile\" value=\"" +
                                              value + L"\"/></appSettings></configuration>")
                                                 .toUtf8());
        return KeyStoreFile::machinePath();
    }

    const CommonAppData m_data;
    const String m_usual = SecurityTest::keyStorePath();
};

TEST_F(KeyStorePath, IsTheUsualOneWithoutConfiguration)
{
    EXPECT_EQ(m_usual, KeyStoreFile::machinePath());
    m_data.write(L"Brimlow/TSvc.config", "<configuration/>");
    EXPECT_EQ(m_usual, KeyStoreFile::machinePath());
}

TEST_F(KeyStorePath, IsTheConfiguredOneWhereThatIsAFullPath)
{
    const TemporaryFolder folder;
    EXPECT_EQ(folder.path(L"Keys & more.p12"), pathFor(folder.path(L"Keys & more.p12")));
    EXPECT_EQ(Core::Process::getCommonAppDataFolder() + L"\\a.p12", pathFor(L"%APP_DATA%\\a.p12"));
}

TEST_F(KeyStorePath, IsTheUsualOneWhereTheConfiguredOneIsEmptyOrRelative)
{
    for (const wchar_t* configured : {L"", L"KeyStore.p12", L"..\\KeyStore.p12", L"C:KeyStore.p12"})
    {
        EXPECT_EQ(m_usual, pathFor(configured));
    }
}

TEST_F(KeyStorePath, IsUnknownWhereTheConfigurationIsDamaged)
{
    m_data.write(L"Brimlow/TSvc.config", "<configuration>");
    EXPECT_THAT(refusal([] { KeyStoreFile::machinePath(); }).toUtf8(), HasSubstr("TSvc.config"));
}

TEST_F(KeyStorePath, IsWhereCertificatesAreStored)
{
    const TemporaryFolder folder;
    pathFor(folder.path(L"elsewhere.p12"));
    const auto store = Security::CertStore::getCertStoreInstance();
    store->importPKCS12(corpusFile(L"ec"));
    EXPECT_THAT(folder.names(), ElementsAre(L"elsewhere.p12", L"elsewhere.p12.lock", L"elsewhere.p12.password"));
    EXPECT_FALSE(fs::exists(toPath(m_usual)));
}

TEST_F(KeyStoreFileTest, AKeyThatCannotBeDecryptedIsReportedAsDamage)
{
    add(L"ec");
    const KeyStore stored = m_file.read();
    const KeyStore ofAnotherPassword{Security::Secret(std::string("another"))};
    EXPECT_TRUE(m_file.decryptKey(stored, stored.identities().front()));

    EXPECT_EQ(m_damaged, refusal([&] { m_file.decryptKey(ofAnotherPassword, stored.identities().front()); }));
}

} // namespace
