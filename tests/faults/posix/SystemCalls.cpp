#include "SystemCalls.h"

#include "SystemCall.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <optional>
#include <stdexcept>
#include <string>
#include <sys/prctl.h>
#include <sys/ucontext.h>
#include <unistd.h>
#include <vector>

namespace
{

int errorOf(Fault fault) noexcept
{
    switch (fault)
    {
    case Fault::accessDenied:
        return EACCES;
    case Fault::inUse:
        return EBUSY;
    default:
        return ENOSPC;
    }
}

long fail(const SystemCall& call, Fault fault) noexcept
{
    if (fault == Fault::killed)
    {
        kill(getpid(), SIGKILL);
    }
    if (call.isMadeAnyway())
    {
        call.make();
    }
    return -errorOf(fault);
}

long answer(const SystemCall& call) noexcept
{
    CutPoint* const point = SystemCalls::cutPoint();
    // The folder that Machine uses, without asking for memory.
    const std::optional<Effect> effect = point ? call.effectIn(std::getenv("PROGRAMDATA")) : std::nullopt;
    switch (effect ? point->next(*effect) : CutPoint::Verdict::goOn)
    {
    case CutPoint::Verdict::goOn:
        break;
    case CutPoint::Verdict::failInTheMiddle:
        // Only writes have a middle here.
        call.makeHalf();
        [[fallthrough]];
    case CutPoint::Verdict::failBefore:
        return fail(call, point->fault());
    }
    return call.make();
}

// In place of a system call.
void onSystemCall(int, siginfo_t* signal, void* context)
{
    greg_t* const registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    const SystemCall::Word arguments[] = {
        static_cast<SystemCall::Word>(registers[REG_RDI]), static_cast<SystemCall::Word>(registers[REG_RSI]),
        static_cast<SystemCall::Word>(registers[REG_RDX]), static_cast<SystemCall::Word>(registers[REG_R10]),
        static_cast<SystemCall::Word>(registers[REG_R8])};
    registers[REG_RAX] = answer(SystemCall(signal->si_syscall, arguments));
}

// The system raises SIGSYS in place of the watched calls, but for those that are made in the handler.
std::vector<sock_filter> makeFilter()
{
    const std::span<const long> watched = SystemCall::watched();
    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (std::size_t index = 0; index < watched.size(); ++index)
    {
        // On to the look at the mark, over what is left of the list and the end behind it.
        const auto distance = static_cast<unsigned char>(watched.size() - index);
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(watched[index]), distance, 0));
    }
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    filter.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[SystemCall::maxArguments])));
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SystemCall::mark, 0, 1));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP));
    return filter;
}

} // namespace

void SystemCalls::watch()
{
    struct sigaction action = {};
    action.sa_sigaction = &onSystemCall;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    std::vector<sock_filter> filter = makeFilter();
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    if (sigaction(SIGSYS, &action, nullptr) != 0 || prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program, 0, 0) != 0)
    {
        throw std::runtime_error(std::string("the system calls cannot be watched: ") + std::strerror(errno));
    }
}
