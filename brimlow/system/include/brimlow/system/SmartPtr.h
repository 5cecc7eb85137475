#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace Core
{

// Logs and throws NullPointerException.
[[noreturn]] void throwNullPointer();

// A counted reference to an object with AddRef and Release, or none. Following an empty one throws
// NullPointerException, after logging it.
template <class T>
class SmartPtr
{
  public:
    SmartPtr() noexcept = default;
    SmartPtr(std::nullptr_t) noexcept {}
    SmartPtr(T* object) noexcept : m_object(object) { addRef(); }
    SmartPtr(const SmartPtr& other) noexcept : m_object(other.m_object) { addRef(); }
    SmartPtr(SmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class Derived>
    requires std::is_convertible_v<Derived*, T*> SmartPtr(const SmartPtr<Derived>& other)
    noexcept : SmartPtr(other.get()) {}
    ~SmartPtr() { reset(); }

    SmartPtr& operator=(SmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    void reset() noexcept
    {
        if (T* object = std::exchange(m_object, nullptr))
        {
            object->Release();
        }
    }

    // Lends the object; the reference stays here. May be null.
    T* get() const noexcept { return m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    T* operator->() const { return &**this; }
    T& operator*() const
    {
        if (!m_object)
        {
            throwNullPointer();
        }
        return *m_object;
    }

    friend bool operator==(const SmartPtr& left, const SmartPtr& right) noexcept
    {
        return left.m_object == right.m_object;
    }

  private:
    void addRef() noexcept
    {
        if (m_object)
        {
            m_object->AddRef();
        }
    }

    T* m_object = nullptr;
};

} // namespace Core
