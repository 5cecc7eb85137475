#pragma once

#include <utility>

namespace Console
{

// Gives a variable another value while it lives.
template <class T>
class Restore
{
  public:
    Restore(T& variable, T value) : m_variable(variable), m_old(std::exchange(variable, std::move(value))) {}
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;
    ~Restore() { m_variable = std::move(m_old); }

  private:
    T& m_variable;
    T m_old;
};

} // namespace Console
