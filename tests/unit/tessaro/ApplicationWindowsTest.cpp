#include "ApplicationDisk.h"
#include "PrintTo.h"
#include "refusal.h"

#include "platform/handles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace Tessaro;
using Core::String;
using testing::ElementsAre;

// Somebody has a file open and shares reading only, as most programs do.
platform::FileHandle openFile(const std::filesystem::path& path, DWORD sharing = FILE_SHARE_READ)
{
    platform::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(file);
    return file;
}

class ApplicationOnWindows : public testing::Test
{
  protected:
    ApplicationOnWindows() : m_application(m_disk.add(L"App"))
    {
        m_application.addNewTemplate(m_disk.templateFile(L"a.xsl", "a"));
    }

    void expectUnchanged() const
    {
        EXPECT_THAT(m_disk.records(), ElementsAre("App engine=1 users=", "App/a.xsl"));
        EXPECT_THAT(m_disk.files(), ElementsAre("App/", "App/a.xsl=a"));
    }

    ApplicationDisk m_disk;
    // The system has an enumerator of the same name.
    Tessaro::ServerApplication m_application;
};

TEST_F(ApplicationOnWindows, StaysAsItIsWhenAFileIsInUse)
{
    const auto held = openFile(m_disk.folder() / "App" / "a.xsl");
    const String reason = L": " + Core::describeSystemError(ERROR_SHARING_VIOLATION) + L" (32).";
    EXPECT_EQ(L"The template \"a.xsl\" cannot be deleted" + reason,
              refusal([&] { m_application.deleteTemplate(m_application.getAt(0)); }));
    expectUnchanged();
    EXPECT_EQ(L"The template \"a.xsl\" cannot be renamed" + reason,
              refusal([&] { m_application.renameTemplate(m_application.getAt(0), L"b.xsl"); }));
    expectUnchanged();
}

TEST_F(ApplicationOnWindows, RefusesASourceThatIsLocked)
{
    const Template source = m_disk.templateFile(L"b.xsl");
    const auto held = openFile(m_disk.outside().folder() / "b.xsl", 0);
    EXPECT_EQ(L"The file \"" + source.getTemplatePath() + L"\" cannot be copied to \"" + fromPath(m_disk.folder()) +
                  L"\": " + Core::describeSystemError(ERROR_SHARING_VIOLATION) + L" (32).",
              refusal([&] { m_application.addNewTemplate(source); }));
    expectUnchanged();
}

TEST_F(ApplicationOnWindows, CopiesWhatOthersAreWriting)
{
    const Template source = m_disk.templateFile(L"b.xsl");
    const platform::FileHandle held(CreateFileW((m_disk.outside().folder() / "b.xsl").c_str(), GENERIC_WRITE,
                                                FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                                                nullptr));
    m_application.addNewTemplate(source);
    EXPECT_EQ(2, m_application.getTemplatesCount());
}

// Read-only and hidden are the source's own.
TEST_F(ApplicationOnWindows, TakesNoAttributesOver)
{
    const Template source = m_disk.templateFile(L"b.xsl");
    SetFileAttributesW(source.getTemplatePath().c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    m_application.addNewTemplate(source);
    EXPECT_EQ(0u, GetFileAttributesW(m_application.getAt(1).getTemplatePath().c_str()) &
                      (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
}

} // namespace
