#include "SecurityTest.h"

#include "PrintTo.h"
#include "refusal.h"

#include "brimlow/system/Exception.h"

#include <gmock/gmock.h>

#include <filesystem>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

using Core::String;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace
{

class ExportTest : public SecurityTest
{
  protected:
    ExportTest()
    {
        m_store->importPKCS12(corpusFile(L"chain"));
        m_store->open(true);
    }

    String refusalOf(const String& path)
    {
        return refusal([&] { m_store->exportPKCS12(0, path); });
    }

    // Whether the exported file has all that was installed.
    void expectWhole(const String& path)
    {
        const String exported = fingerprint(0);
        m_store->deleteIdentity(0);
        m_store->importPKCS12(path);
        EXPECT_THAT(stored(), ElementsAre(L"chain.example.com"));
        EXPECT_EQ(exported, fingerprint(0));
    }
};

TEST_F(ExportTest, CanBeImportedAgain)
{
    m_store->exportPKCS12(0, m_folder.path(L"export.p12"));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"export.p12"));
    expectWhole(m_folder.path(L"export.p12"));
}

TEST_F(ExportTest, ReplacesAFile)
{
    m_folder.write(L"export.p12", "something else");
    m_store->exportPKCS12(0, m_folder.path(L"export.p12"));
    expectWhole(m_folder.path(L"export.p12"));
}

TEST_F(ExportTest, DoesNotChangeTheKeyStore)
{
    const fs::path file = toPath(keyStorePath());
    const auto before = fs::last_write_time(file);
    m_store->exportPKCS12(0, m_folder.path(L"export.p12"));
    EXPECT_EQ(before, fs::last_write_time(file));
    EXPECT_THAT(stored(), ElementsAre(L"chain.example.com"));
}

TEST_F(ExportTest, ToWhereAFolderIsIsRefused)
{
    fs::create_directory(m_folder.folder() / "export.p12");
    EXPECT_THAT(refusalOf(m_folder.path(L"export.p12")).toUtf8(), HasSubstr(m_folder.path(L"export.p12").toUtf8()));
    EXPECT_TRUE(fs::is_empty(m_folder.folder() / "export.p12"));
}

TEST_F(ExportTest, ToAReadOnlyFileIsRefused)
{
    m_folder.write(L"export.p12", "something else");
    fs::permissions(m_folder.folder() / "export.p12", fs::perms::owner_read);
    EXPECT_EQ(L"The file \"" + m_folder.path(L"export.p12") +
                  L"\" cannot be saved, because it is read-only. Remove its read-only attribute first.",
              refusalOf(m_folder.path(L"export.p12")));
    EXPECT_EQ("something else", m_folder.read(L"export.p12"));
}

TEST_F(ExportTest, BelowAFileIsRefused)
{
    m_folder.write(L"file", "");
    EXPECT_THAT(refusalOf(m_folder.path(L"file/export.p12")).toUtf8(), HasSubstr("file"));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"file"));
}

#ifdef _WIN32
TEST_F(ExportTest, ToTheTopOfADriveSucceeds)
{
    const String path = L"C:\\tessaro-test-export.p12";
    m_store->exportPKCS12(0, path);
    expectWhole(path);
    fs::remove(toPath(path));
}
#else
TEST_F(ExportTest, IsForItsOwnerOnlyUnlessTheFileWasThere)
{
    m_store->exportPKCS12(0, m_folder.path(L"new.p12"));
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, fs::status(m_folder.folder() / "new.p12").permissions());
    m_folder.write(L"old.p12", "");
    fs::permissions(m_folder.folder() / "old.p12", fs::perms(0644));
    m_store->exportPKCS12(0, m_folder.path(L"old.p12"));
    EXPECT_EQ(fs::perms(0644), fs::status(m_folder.folder() / "old.p12").permissions());
}

// While it lives, no file can be written to.
class FullDisk
{
  public:
    FullDisk()
    {
        // Otherwise the signal would end the process.
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit m_before{};
};

TEST_F(ExportTest, ToAFullDiskLeavesNothing)
{
    String sentence;
    {
        const FullDisk disk;
        sentence = refusalOf(m_folder.path(L"export.p12"));
    }
    EXPECT_THAT(sentence.toUtf8(), HasSubstr("The file \"" + m_folder.path(L"export.p12").toUtf8() +
                                             "\" cannot be saved, its new content cannot be written"));
    EXPECT_THAT(m_folder.names(), IsEmpty());
}
#endif

} // namespace
