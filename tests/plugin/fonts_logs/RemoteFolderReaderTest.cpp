#include "tmgmt/fonts_logs/RemoteFolderReader.h"

#include "kit/ImportPatch.h"
#include "platform/handles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>

namespace TMgmt
{
namespace
{

using Names = std::vector<Core::String>;
using namespace std::chrono_literals;

constexpr DWORD testPatience = 10'000; // milliseconds

class RemoteFolders : public testing::Test
{
  protected:
    // Lists one file named after the folder. "slow" waits for answer().
    RemoteFolderReader::List list()
    {
        return [this](const Core::String& folder)
        {
            ++m_calls;
            if (folder == Core::String(L"slow"))
            {
                WaitForSingleObject(m_answers.get(), testPatience);
            }
            return Names{folder};
        };
    }

    void answer() const { SetEvent(m_answers.get()); }

    std::atomic<int> m_calls = 0;

  private:
    platform::KernelHandle m_answers{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

TEST_F(RemoteFolders, thatAnswerAreListedOnAnotherThread)
{
    DWORD thread = GetCurrentThreadId();
    RemoteFolderReader reader(
        [&](const Core::String& folder)
        {
            thread = GetCurrentThreadId();
            return Names{folder, L"b"};
        },
        10s);
    EXPECT_EQ((Names{L"a", L"b"}), reader.list(L"a"));
    EXPECT_NE(GetCurrentThreadId(), thread);
    EXPECT_EQ((Names{L"c", L"b"}), reader.list(L"c"));
}

TEST_F(RemoteFolders, thatDoNotAnswerAreEmptyAndAskedOnceOnly)
{
    RemoteFolderReader reader(list(), 50ms);
    EXPECT_EQ(Names{}, reader.list(L"slow"));
    EXPECT_EQ(Names{}, reader.list(L"slow"));
    EXPECT_EQ(Names{}, reader.list(L"slow"));
    EXPECT_LE(m_calls, 1);
    answer();
    Names names;
    for (const ULONGLONG begin = GetTickCount64(); names.empty() && GetTickCount64() - begin < testPatience;)
    {
        names = reader.list(L"slow");
    }
    EXPECT_EQ(Names{L"slow"}, names);
}

TEST_F(RemoteFolders, thatFailAreEmpty)
{
    RemoteFolderReader reader([](const Core::String&) -> Names { throw std::runtime_error("no"); }, 10s);
    EXPECT_EQ(Names{}, reader.list(L"a"));
    EXPECT_EQ(Names{}, reader.list(L"a"));
}

HMODULE leftModule;
HANDLE left;

[[noreturn]] void WINAPI leave(HMODULE module, DWORD code)
{
    leftModule = module;
    SetEvent(left);
    FreeLibraryAndExitThread(module, code);
}

// The caller may be gone, and its module with it, when the folder answers at last.
TEST_F(RemoteFolders, keepTheModuleForAsLongAsTheyAreRead)
{
    const Acceptance::ImportPatch patch("FreeLibraryAndExitThread", &leave, nullptr);
    const platform::KernelHandle leaves(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    left = leaves.get();
    {
        RemoteFolderReader reader(list(), 0ms);
        EXPECT_EQ(Names{}, reader.list(L"slow"));
    }
    EXPECT_EQ(WAIT_TIMEOUT, WaitForSingleObject(left, 0));
    answer();
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(left, testPatience));
    EXPECT_EQ(GetModuleHandleW(nullptr), leftModule);
}

TEST(IsRemote, tellsOtherMachinesFromThisOne)
{
    for (const wchar_t* const folder :
         {L"\\\\server\\share", L"\\\\server\\share\\Log\\", L"//server/share/Log", L"\\\\10.0.0.1\\c$"})
    {
        EXPECT_TRUE(isRemote(folder)) << Core::String(folder).toUtf8();
    }
    for (const wchar_t* const folder :
         {L"C:\\ProgramData", L"C:", L"C:/Log", L"Log", L"\\Log", L"Q:\\no such drive", L""})
    {
        EXPECT_FALSE(isRemote(folder)) << Core::String(folder).toUtf8();
    }
}

} // namespace
} // namespace TMgmt
