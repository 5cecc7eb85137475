#pragma once

namespace Security
{

// Throws Core::Exception: what could not be done, a sentence without its full stop, and OpenSSL's reason.
[[noreturn]] void fail(const wchar_t* what);

// For calls that fail only when memory or randomness runs out: hand the result on, or fail. OpenSSL's numbers are
// positive on success.
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

} // namespace Security
