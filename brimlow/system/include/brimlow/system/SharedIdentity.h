#pragma once

#include <memory>

namespace Core
{

// Which shared object this was taken of. It does not keep the object alive, and is equal only to another one of the
// same object while that lives: never to one of an object that came to be at the same address later, and never when it
// was taken of none.
class SharedIdentity
{
  public:
    SharedIdentity() noexcept = default;
    explicit SharedIdentity(const std::shared_ptr<const void>& object) noexcept : m_object(object) {}

    friend bool operator==(const SharedIdentity& left, const SharedIdentity& right) noexcept
    {
        const auto object = left.m_object.lock();
        return object && object == right.m_object.lock();
    }

  private:
    std::weak_ptr<const void> m_object;
};

} // namespace Core
