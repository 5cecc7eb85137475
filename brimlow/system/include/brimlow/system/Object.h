#pragma once

#include <atomic>

namespace Core
{

// Base of counted objects. A new object has no references; the first SmartPtr that takes it adds one. The object
// deletes itself with its last reference, so it is made with new only. Counting is safe from several threads, the
// rest of an object is not.
class Object
{
  public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    // Both return the number of references afterwards.
    unsigned long AddRef() noexcept;
    unsigned long Release() noexcept;

  protected:
    Object() noexcept = default;
    virtual ~Object() = default;

  private:
    std::atomic<unsigned long> m_references{0};
};

} // namespace Core
