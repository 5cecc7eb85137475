#include "CallGuard.h"

namespace
{

struct GuardFrame
{
    void* resume[5]; // frame pointer, address and stack pointer to go on at, as __builtin_setjmp keeps them
    GuardFrame* outer;
    Console::GuardOutcome outcome;
};

thread_local GuardFrame* t_innermost = nullptr;

// What Microsoft's C++ compiler throws with. GCC's own exceptions are caught by catch (…).
constexpr DWORD microsoftException = 0xE06D7363;

bool isContained(DWORD code)
{
    switch (code)
    {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ARRAY_BOUNDS_EXCEEDED:
    case EXCEPTION_DATATYPE_MISALIGNMENT:
    case EXCEPTION_FLT_DIVIDE_BY_ZERO:
    case EXCEPTION_FLT_INVALID_OPERATION:
    case EXCEPTION_FLT_OVERFLOW:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_IN_PAGE_ERROR:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
    case EXCEPTION_PRIV_INSTRUCTION:
    case microsoftException:
        return true;
    default:
        return false;
    }
}

} // namespace

// The frame handler of runWatched. The system calls it when no frame further in took the exception; so the frame that
// it is called for is always the innermost guard's.
extern "C" EXCEPTION_DISPOSITION console_guard_handler(EXCEPTION_RECORD* record, void* establisher, CONTEXT* context,
                                                       DISPATCHER_CONTEXT* dispatcher)
{
    constexpr DWORD unwinding = 0x2 | 0x4; // EXCEPTION_UNWINDING, EXCEPTION_EXIT_UNWIND: mingw does not name them
    if ((record->ExceptionFlags & unwinding) != 0 || !isContained(record->ExceptionCode))
    {
        return ExceptionContinueSearch;
    }
    GuardFrame* const guard = t_innermost;
    const bool threw = record->ExceptionCode == microsoftException;
    guard->outcome.kind = threw ? Console::GuardOutcome::Kind::threw : Console::GuardOutcome::Kind::faulted;
    guard->outcome.code = record->ExceptionCode;
    guard->outcome.address = record->ExceptionAddress;
    if ((record->ExceptionFlags & EXCEPTION_NONCONTINUABLE) != 0)
    {
        // A thrown exception: its frames are sound and may clean up. Does not return.
        RtlUnwindEx(establisher, guard->resume[1], record, nullptr, context, dispatcher->HistoryTable);
    }
    // After a fault nothing of the foreign code runs any more: go on in runWatched as if by longjmp. (A real longjmp
    // out of a handler would leave the system's own record of this handler call behind.)
    context->Rbp = reinterpret_cast<DWORD64>(guard->resume[0]);
    context->Rip = reinterpret_cast<DWORD64>(guard->resume[1]);
    context->Rsp = reinterpret_cast<DWORD64>(guard->resume[2]);
    return ExceptionContinueExecution;
}

namespace
{

// Not inlined or cloned: the handler belongs to exactly this frame. Has nothing to destroy, so that GCC gives the
// frame no handler of its own.
__attribute__((noinline, noclone)) void runWatched(GuardFrame* guard, void (*body)(GuardFrame*, void*), void* argument)
{
    __asm__ __volatile__(".seh_handler console_guard_handler, @except");
    if (__builtin_setjmp(guard->resume) == 0)
    {
        body(guard, argument);
    }
}

struct Errand
{
    void (*body)(void*);
    void* argument;
};

void runErrand(GuardFrame* guard, void* argument) noexcept
{
    const auto* const errand = static_cast<const Errand*>(argument);
    try
    {
        errand->body(errand->argument);
    }
    catch (...)
    {
        guard->outcome.kind = Console::GuardOutcome::Kind::threw;
    }
}

} // namespace

namespace Console
{

GuardOutcome runGuarded(void (*body)(void*), void* argument) noexcept
{
    Errand errand{body, argument};
    GuardFrame guard{{}, t_innermost, {}};
    t_innermost = &guard;
    runWatched(&guard, &runErrand, &errand);
    t_innermost = guard.outer;
    return guard.outcome;
}

} // namespace Console
