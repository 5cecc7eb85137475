#pragma once

#include <new>

namespace Security
{

// Throws Core::Exception: what could not be done, a sentence without its full stop, and OpenSSL's reason.
[[noreturn]] void fail(const wchar_t* what);

// For calls that fail only when randomness runs out, or for what is no key and no certificate: hand the result on, or
// fail. OpenSSL's numbers are positive on success.
inline int check(int result, const wchar_t* what)
{
    if (result <= 0)
    {
        fail(what);
    }
    return result;
}

template <class T>
T* check(T* result, const wchar_t* what)
{
    if (!result)
    {
        fail(what);
    }
    return result;
}

// For calls that fail only when memory runs out: hand the result on, or throw std::bad_alloc.
inline void checkMemory(int result)
{
    if (result <= 0)
    {
        throw std::bad_alloc();
    }
}

template <class T>
T* checkMemory(T* result)
{
    if (!result)
    {
        throw std::bad_alloc();
    }
    return result;
}

} // namespace Security
