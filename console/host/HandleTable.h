#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <utility>
#include <vector>

namespace Console
{

// Owns values and names them by handles that can be given to strangers: a handle is no address, is above 4 GiB (so
// that 32-bit truncation shows), and is not used again after its value went. Anything may be asked for; what is not a
// live handle of this table is simply not found. Values stay where they are in memory.
template <class T>
class HandleTable
{
  public:
    // Tables with different salts do not take each other's handles.
    explicit HandleTable(std::uint32_t salt) : m_salt(salt) {}

    LONG_PTR insert(T value)
    {
        std::uint32_t place;
        if (m_free.empty())
        {
            place = static_cast<std::uint32_t>(m_slots.size());
            m_slots.emplace_back();
        }
        else
        {
            place = m_free.back();
            m_free.pop_back();
        }
        m_slots[place].value.emplace(std::move(value));
        return handle(place);
    }

    T* find(LONG_PTR handle)
    {
        const auto bits = static_cast<std::uint64_t>(handle);
        const auto place = static_cast<std::uint32_t>(bits);
        const auto generation = static_cast<std::uint32_t>(bits >> 32) ^ m_salt;
        if (place >= m_slots.size() || !m_slots[place].value || m_slots[place].generation != generation)
        {
            return nullptr;
        }
        return &*m_slots[place].value;
    }

    void erase(LONG_PTR handle)
    {
        if (find(handle) != nullptr)
        {
            const auto place = static_cast<std::uint32_t>(handle);
            m_slots[place].value.reset();
            m_slots[place].generation = (m_slots[place].generation + 1) & generationMask;
            m_free.push_back(place);
        }
    }

  private:
    // Leaves the salt's top byte alone, which keeps every handle positive and above 4 GiB.
    static constexpr std::uint32_t generationMask = 0x00FFFFFF;

    struct Slot
    {
        std::optional<T> value;
        std::uint32_t generation = 0;
    };

    LONG_PTR handle(std::uint32_t place) const
    {
        return static_cast<LONG_PTR>(std::uint64_t{m_slots[place].generation ^ m_salt} << 32 | place);
    }

    std::deque<Slot> m_slots;
    std::vector<std::uint32_t> m_free;
    std::uint32_t m_salt;
};

} // namespace Console
