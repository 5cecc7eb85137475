#include "brimlow/system/Object.h"

namespace Core
{

unsigned long Object::AddRef() noexcept
{
    return ++m_references;
}

unsigned long Object::Release() noexcept
{
    const unsigned long left = --m_references;
    if (left == 0)
    {
        delete this;
    }
    return left;
}

} // namespace Core
