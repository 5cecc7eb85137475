#include "SystemCall.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <iterator>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

// How a call names its file, in its first arguments.
enum class Target
{
    descriptor,
    path,
    // A path that may begin at the folder of a descriptor.
    descriptorAndPath
};

struct Kind
{
    long number;
    Target target;
    Effect effect;
};

constexpr Kind kinds[] = {
    {SYS_open, Target::path, Effect::claims},
    {SYS_openat, Target::descriptorAndPath, Effect::claims},
    {SYS_stat, Target::path, Effect::looks},
    {SYS_lstat, Target::path, Effect::looks},
    {SYS_fstat, Target::descriptor, Effect::looks},
    {SYS_newfstatat, Target::descriptorAndPath, Effect::looks},
    {SYS_statx, Target::descriptorAndPath, Effect::looks},
    {SYS_access, Target::path, Effect::looks},
    {SYS_faccessat, Target::descriptorAndPath, Effect::looks},
    {SYS_faccessat2, Target::descriptorAndPath, Effect::looks},
    {SYS_readlink, Target::path, Effect::looks},
    {SYS_readlinkat, Target::descriptorAndPath, Effect::looks},
    {SYS_getdents64, Target::descriptor, Effect::looks},
    {SYS_read, Target::descriptor, Effect::looks},
    {SYS_pread64, Target::descriptor, Effect::looks},
    {SYS_lseek, Target::descriptor, Effect::looks},
    {SYS_fcntl, Target::descriptor, Effect::claims},
    {SYS_flock, Target::descriptor, Effect::claims},
    {SYS_close, Target::descriptor, Effect::looks},
    {SYS_write, Target::descriptor, Effect::writes},
    {SYS_pwrite64, Target::descriptor, Effect::writes},
    {SYS_fallocate, Target::descriptor, Effect::makes},
    {SYS_fsync, Target::descriptor, Effect::makes},
    {SYS_fdatasync, Target::descriptor, Effect::makes},
    {SYS_ftruncate, Target::descriptor, Effect::changes},
    {SYS_chmod, Target::path, Effect::changes},
    {SYS_fchmod, Target::descriptor, Effect::changes},
    {SYS_fchmodat, Target::descriptorAndPath, Effect::changes},
    {SYS_fchown, Target::descriptor, Effect::changes},
    {SYS_mkdir, Target::path, Effect::makes},
    {SYS_mkdirat, Target::descriptorAndPath, Effect::makes},
    {SYS_link, Target::path, Effect::makes},
    {SYS_linkat, Target::descriptorAndPath, Effect::makes},
    {SYS_rename, Target::path, Effect::makes},
    {SYS_renameat, Target::descriptorAndPath, Effect::makes},
    {SYS_renameat2, Target::descriptorAndPath, Effect::makes},
    {SYS_unlink, Target::path, Effect::changes},
    {SYS_unlinkat, Target::descriptorAndPath, Effect::changes},
    {SYS_rmdir, Target::path, Effect::changes},
};

constexpr auto numbers = []
{
    std::array<long, std::size(kinds)> all{};
    std::ranges::transform(kinds, all.begin(), &Kind::number);
    return all;
}();

const Kind& kindOf(long number) noexcept
{
    return *std::ranges::find(kinds, number, &Kind::number);
}

long make(long number, const SystemCall::Word* arguments) noexcept
{
    // The one who made the call reads its error elsewhere.
    const int before = errno;
    long result =
        syscall(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], SystemCall::mark);
    if (result == -1)
    {
        result = -errno;
    }
    errno = before;
    return result;
}

} // namespace

std::span<const long> SystemCall::watched() noexcept
{
    return numbers;
}

SystemCall::SystemCall(long number, const Word* arguments) noexcept : m_number(number)
{
    std::copy_n(arguments, maxArguments, m_arguments);
}

std::optional<Effect> SystemCall::effectIn(std::string_view folder) const noexcept
{
    std::array<char, 4096> memory{};
    if (!place(memory).starts_with(folder))
    {
        return std::nullopt;
    }
    if (isUnlocking())
    {
        return std::nullopt;
    }
    const bool isOpening = m_number == SYS_open || m_number == SYS_openat;
    const bool isMaking = isOpening && (m_arguments[m_number == SYS_open ? 1 : 2] & (O_CREAT | O_TRUNC)) != 0;
    return isMaking ? Effect::makes : kindOf(m_number).effect;
}

// That does not fail.
bool SystemCall::isUnlocking() const noexcept
{
    return m_number == SYS_fcntl && m_arguments[1] == F_SETLK &&
           reinterpret_cast<const struct flock*>(m_arguments[2])->l_type == F_UNLCK;
}

// Where the file is that the call is for; what it names is in memory or in that of the caller.
std::string_view SystemCall::place(std::span<char> memory) const noexcept
{
    const Target target = kindOf(m_number).target;
    if (target != Target::descriptor)
    {
        const std::string_view path = reinterpret_cast<const char*>(m_arguments[target == Target::path ? 0 : 1]);
        if (target == Target::path || path.starts_with('/'))
        {
            return path;
        }
    }
    std::array<char, 40> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", static_cast<int>(m_arguments[0]));
    const Word arguments[maxArguments] = {reinterpret_cast<Word>(link.data()), reinterpret_cast<Word>(memory.data()),
                                          memory.size()};
    const long length = ::make(SYS_readlink, arguments);
    return {memory.data(), static_cast<std::size_t>(std::max(length, 0L))};
}

long SystemCall::make() const noexcept
{
    return ::make(m_number, m_arguments);
}

void SystemCall::makeHalf() const noexcept
{
    SystemCall half = *this;
    half.m_arguments[2] /= 2;
    half.make();
}

bool SystemCall::isMadeAnyway() const noexcept
{
    return m_number == SYS_close;
}
