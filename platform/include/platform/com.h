#pragma once

#include <wrl/client.h>

namespace platform
{

// A pointer that takes over the reference which its caller owns. In place of ComPtr::Attach: mingw-w64's adds a
// reference of its own, which nobody ever releases.
template <class T>
Microsoft::WRL::ComPtr<T> takeReference(T* object) noexcept
{
    Microsoft::WRL::ComPtr<T> owner;
    *owner.GetAddressOf() = object;
    return owner;
}

} // namespace platform
