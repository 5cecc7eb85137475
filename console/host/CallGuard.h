#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace Console
{

// How a call into foreign code ended.
struct GuardOutcome
{
    enum class Kind
    {
        returned,
        threw,   // a C++ exception came out
        faulted, // access violation, illegal instruction, division by zero, …
    };
    Kind kind = Kind::returned;
    DWORD code = 0; // of the fault
    const void* address = nullptr;
};

// Runs foreign code so that neither a C++ exception nor a processor fault leaves it. Faults that the foreign code
// handles itself stay its own business.
//
// Limits: after a fault nothing between here and the faulting instruction is unwound (locks stay locked, memory stays
// allocated), so whoever faulted must not be called again. A stack overflow, heap corruption that is noticed by the
// system (it ends the process), and faults on threads that the foreign code started are not contained. On Windows,
// faults inside window procedures may be swallowed by the system before they come here.
GuardOutcome runGuarded(void (*body)(void*), void* argument) noexcept;

template <class Body>
GuardOutcome guarded(Body&& body) noexcept
{
    using Plain = std::remove_reference_t<Body>;
    return runGuarded([](void* argument) { (*static_cast<Plain*>(argument))(); },
                      const_cast<void*>(static_cast<const void*>(std::addressof(body))));
}

} // namespace Console
