#include "Attempt.h"

#include <csignal>
#include <iostream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

// Each process copies the tables of this one's memory: there shall be little. What is freed may be used again soon, and
// nobody waits long for it. Leaks are looked for by UnitTests: at its end the leak checker starts a process of its own,
// which never comes to life under the trap for system calls.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0:quarantine_size_mb=1:thread_local_quarantine_size_kb=16:malloc_context_size=2";
}

Attempt attemptElsewhere(const Save& save, Fault fault, int point)
{
    const pid_t process = fork();
    if (process < 0)
    {
        throw std::runtime_error("no process can be started");
    }
    if (process == 0)
    {
        const Attempt attempt = attemptHere(save, fault, point);
        std::cerr << attempt.reason;
        _exit(static_cast<int>(attempt.ending));
    }
    int status = 0;
    waitpid(process, &status, 0);
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
    {
        return {Attempt::Ending::killed, {}, true};
    }
    const bool isDone = WIFEXITED(status) && WEXITSTATUS(status) == static_cast<int>(Attempt::Ending::done);
    return {isDone ? Attempt::Ending::done : Attempt::Ending::broken, "wait status " + std::to_string(status), false};
}
