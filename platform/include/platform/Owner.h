#pragma once

#include <utility>

namespace platform
{

// Owns one handle of the system and closes it when it goes. Traits gives the handle's type, the value that means
// "none" and the function that closes it:
//
//     struct IconTraits { using Handle = HICON; static Handle none(); static void close(Handle) noexcept; };
//
// There is no implicit way back to the raw handle: get() lends it, release() gives it away.
template <class Traits>
class Owner
{
  public:
    using Handle = typename Traits::Handle;

    Owner() noexcept = default;
    explicit Owner(Handle handle) noexcept : m_handle(handle) {}
    Owner(Owner&& other) noexcept : m_handle(other.release()) {}
    Owner& operator=(Owner&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { reset(); }

    Handle get() const noexcept { return m_handle; }
    explicit operator bool() const noexcept { return m_handle != Traits::none(); }

    // Gives the handle away; the caller closes it.
    [[nodiscard]] Handle release() noexcept { return std::exchange(m_handle, Traits::none()); }

    void reset(Handle handle = Traits::none()) noexcept
    {
        const Handle old = std::exchange(m_handle, handle);
        if (old != Traits::none() && old != handle)
        {
            Traits::close(old);
        }
    }

    // Closes what it owns and lends the place for a new handle to a function that fills it in.
    Handle* put() noexcept
    {
        reset();
        return &m_handle;
    }

  private:
    Handle m_handle = Traits::none();
};

} // namespace platform
