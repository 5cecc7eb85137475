#include "FileFaults.h"
#include "PrintTo.h"
#include "TemporaryFolder.h"
#include "brimlow/system/AtomicFile.h"

#include "platform/handles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sddl.h>

using Core::String;
using Core::SystemError;
using Core::IO::AtomicFile;
using testing::ElementsAre;

namespace
{

// SYSTEM and the administrators only, nothing inherited.
constexpr const wchar_t* closedToOthers = L"D:P(A;;FA;;;SY)(A;;FA;;;BA)";

void setAccessList(const String& path, const wchar_t* text)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &descriptor, nullptr));
    const platform::LocalMemory owner(descriptor);
    ASSERT_TRUE(SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor));
}

std::wstring accessList(const String& path)
{
    DWORD size = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> descriptor(size);
    EXPECT_TRUE(GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size));
    LPWSTR text = nullptr;
    EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1,
                                                                     DACL_SECURITY_INFORMATION, &text, nullptr));
    const platform::LocalMemory owner(text);
    return text ? text : L"";
}

platform::FileHandle open(const String& path, DWORD sharing)
{
    return platform::FileHandle(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
}

class AtomicFileOnWindows : public testing::Test
{
  protected:
    AtomicFileOnWindows() { m_folder.write(L"a.config", "old"); }

    const TemporaryFolder m_folder;
    const String m_path = m_folder.path(L"a.config");
};

TEST_F(AtomicFileOnWindows, TheNewFileHasTheAccessListOfTheOldOne)
{
    const std::wstring ordinary = accessList(m_path);
    setAccessList(m_path, closedToOthers);
    const std::wstring closed = accessList(m_path);
    ASSERT_NE(ordinary, closed);
    AtomicFile::write(m_path, "new");
    EXPECT_EQ(closed, accessList(m_path));
}

TEST_F(AtomicFileOnWindows, TheSideFileIsNeverMoreOpenThanTheFile)
{
    setAccessList(m_path, closedToOthers);
    const std::wstring closed = accessList(m_path);
    int looks = 0;
    FileFaults faults(
        [&](int) -> SystemError
        {
            for (const String& name : m_folder.names())
            {
                EXPECT_EQ(closed, accessList(m_folder.path(name.c_str())));
                ++looks;
            }
            return 0;
        });
    AtomicFile::write(m_path, "new", faults);
    EXPECT_GT(looks, 7);
}

TEST_F(AtomicFileOnWindows, AReaderThatSharesEverythingKeepsTheOldContentOpen)
{
    const platform::FileHandle reader = open(m_path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    ASSERT_TRUE(reader);
    AtomicFile::write(m_path, "new");
    char content[10] = {};
    DWORD count = 0;
    EXPECT_TRUE(ReadFile(reader.get(), content, sizeof content, &count, nullptr));
    EXPECT_STREQ("old", content);
    EXPECT_EQ("new", m_folder.read(L"a.config"));
}

TEST_F(AtomicFileOnWindows, AProgramThatLetsGoInTimeIsWaitedFor)
{
    platform::FileHandle holder = open(m_path, 0);
    ASSERT_TRUE(holder);
    FileFaults faults([](int) { return 0; });
    int pauses = 0;
    faults.pauseBy(
        [&]
        {
            if (++pauses == 3)
            {
                holder.reset();
            }
        });
    AtomicFile::write(m_path, "new", faults);
    EXPECT_EQ(3, pauses);
    EXPECT_EQ("new", m_folder.read(L"a.config"));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.config"));
}

TEST_F(AtomicFileOnWindows, AProgramThatDoesNotLetGoIsReportedAndTheFileStays)
{
    platform::FileHandle holder = open(m_path, 0);
    ASSERT_TRUE(holder);
    try
    {
        AtomicFile::write(m_path, "new");
        FAIL() << "nothing thrown";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_EQ(static_cast<SystemError>(ERROR_SHARING_VIOLATION), exception.getSystemError());
        EXPECT_NE(std::wstring::npos, exception.getMessage().str().find(m_path.str()));
    }
    holder.reset();
    EXPECT_EQ("old", m_folder.read(L"a.config"));
    EXPECT_THAT(m_folder.names(), ElementsAre(L"a.config"));
}

} // namespace
