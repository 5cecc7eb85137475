#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace Hostile
{

// All that is left to chance. The same seed gives the same choices in the same order.
class Whim
{
  public:
    explicit Whim(std::uint32_t seed) : m_engine(seed) {}
    Whim(const Whim&) = delete;
    Whim& operator=(const Whim&) = delete;

    // 0 to count - 1.
    std::size_t below(std::size_t count) { return m_engine() % count; }
    // True in one of that many times.
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class Range>
    auto& oneOf(Range&& range)
    {
        return std::data(range)[below(std::size(range))];
    }

    // How often the console fails: in one of that many calls; 0: never.
    void failOneIn(std::size_t calls) { m_failOneIn = calls; }
    // What a method of the console answers.
    HRESULT answer()
    {
        if (m_failOneIn == 0 || !oneIn(m_failOneIn))
        {
            return S_OK;
        }
        constexpr std::array failures{E_FAIL, E_OUTOFMEMORY, E_NOTIMPL};
        return oneOf(failures);
    }

  private:
    std::mt19937 m_engine;
    std::size_t m_failOneIn = 0;
};

} // namespace Hostile
