#include "SecurityTest.h"

#include "PrintTo.h"

#include "KeyStoreFile.h"
#include "Pkcs12Import.h"
#include "describe.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

using Core::String;
using Security::KeyStore;
using Security::KeyStoreFile;
using testing::ElementsAre;

namespace
{

KeyStoreFile fileIn(const TemporaryFolder& folder)
{
    return KeyStoreFile(folder.path(L"store/a.p12"));
}

void add(const TemporaryFolder& folder, const wchar_t* name)
{
    fileIn(folder).change(
        [&](KeyStore& store)
        {
            const Security::Secret none;
            Security::Pkcs12Import(corpusContent(name), none).into(store);
        });
}

std::vector<String> names(const TemporaryFolder& folder)
{
    const KeyStore store = fileIn(folder).read();
    std::vector<String> names;
    for (const KeyStore::Identity& identity : store.identities())
    {
        store.decryptKey(identity);
        names.push_back(Security::describe(*identity.certificate).subjectCN);
    }
    return names;
}

// Whether the system call changes something on the disk.
bool changesDisk(const user_regs_struct& call)
{
    switch (call.orig_rax)
    {
    case SYS_openat:
        return (call.rdx & O_CREAT) != 0;
    case SYS_mkdir:
    case SYS_write:
    case SYS_fchmod:
    case SYS_fsync:
    case SYS_rename:
    case SYS_link:
    case SYS_unlink:
        return true;
    default:
        return false;
    }
}

// Does the change in another process, which is killed just before its system call number killAt of those that change
// something on the disk, counted from 1. False when it ended before.
template <class Change>
bool isKilledDuring(Change change, int killAt)
{
    const pid_t process = fork();
    if (process == 0)
    {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        change();
        _exit(0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFSTOPPED(status));
    ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
    int calls = 0;
    for (bool entering = true;; entering = !entering)
    {
        ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
        waitpid(process, &status, 0);
        if (WIFEXITED(status))
        {
            EXPECT_EQ(0, WEXITSTATUS(status));
            return false;
        }
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, process, nullptr, &registers);
        if (entering && changesDisk(registers) && ++calls == killAt)
        {
            kill(process, SIGKILL);
            waitpid(process, &status, 0);
            return true;
        }
    }
}

TEST(KilledSave, LeavesTheOldKeyStoreOrTheNewOne)
{
    const TemporaryFolder folder;
    add(folder, L"ec");
    int killAt = 1;
    while (isKilledDuring([&] { add(folder, L"ed25519"); }, killAt) && names(folder).size() == 1)
    {
        EXPECT_THAT(names(folder), ElementsAre(L"ec.example.com")) << "call " << killAt;
        ++killAt;
    }
    EXPECT_GT(killAt, 4); // create, write, flush, replace
    EXPECT_THAT(names(folder), ElementsAre(L"ec.example.com", L"ed25519.example.com"));
}

TEST(KilledSave, OfTheFirstCertificateLeavesAKeyStoreThatCanBeUsed)
{
    int killAt = 1;
    for (;; ++killAt)
    {
        const TemporaryFolder folder;
        const bool killed = isKilledDuring([&] { add(folder, L"ed25519"); }, killAt);
        const std::vector<String> left = names(folder);
        add(folder, L"ec");
        if (left.empty())
        {
            EXPECT_THAT(names(folder), ElementsAre(L"ec.example.com")) << "call " << killAt;
        }
        else
        {
            EXPECT_THAT(left, ElementsAre(L"ed25519.example.com")) << "call " << killAt;
            EXPECT_THAT(names(folder), ElementsAre(L"ed25519.example.com", L"ec.example.com")) << "call " << killAt;
        }
        if (!killed)
        {
            EXPECT_FALSE(left.empty());
            break;
        }
    }
    // Folder, lock, password (made, written, flushed, put in place), and the key store in the same way.
    EXPECT_GT(killAt, 10);
}

TEST(KilledSave, OfARemovalLeavesTheOldKeyStoreOrTheNewOne)
{
    const TemporaryFolder folder;
    add(folder, L"ec");
    add(folder, L"ed25519");
    const auto remove = [&]
    {
        fileIn(folder).change([](KeyStore& store)
                              { store.remove(Security::fingerprintOf(*store.identities().front().certificate)); });
    };
    int killAt = 1;
    while (isKilledDuring(remove, killAt) && names(folder).size() == 2)
    {
        ++killAt;
    }
    EXPECT_GT(killAt, 4);
    EXPECT_THAT(names(folder), ElementsAre(L"ed25519.example.com"));
}

} // namespace
