#include "tmgmt/snapin/NodeTable.h"

namespace TMgmt
{
namespace
{

constexpr int turnShift = 32;
constexpr std::uint64_t indexMask = 0xFFFFFFFF;
// Turns begin at 1, because 0 is the console's number for the static node, and end here, because small negative numbers
// are the console's own.
constexpr std::uint32_t lastTurn = 0x7FFFFFFF;

} // namespace

static_assert(sizeof(MMC_COOKIE) == sizeof(std::uint64_t));

MMC_COOKIE NodeTable::cookieOf(std::uint32_t index, std::uint32_t turn) noexcept
{
    return static_cast<MMC_COOKIE>(std::uint64_t{turn} << turnShift | index);
}

MMC_COOKIE NodeTable::add(CSnapInItem& node)
{
    const std::uint32_t index = m_free;
    if (index == m_places.size())
    {
        m_places.push_back({nullptr, 1, index + 1});
    }
    Place& place = m_places[index];
    place.node = &node;
    m_free = place.nextFree;
    return cookieOf(index, place.turn);
}

void NodeTable::remove(MMC_COOKIE cookie) noexcept
{
    const auto index = static_cast<std::uint32_t>(static_cast<std::uint64_t>(cookie) & indexMask);
    Place& place = m_places[index];
    place.node = nullptr;
    place.turn = place.turn == lastTurn ? 1 : place.turn + 1;
    place.nextFree = m_free;
    m_free = index;
}

CSnapInItem* NodeTable::find(MMC_COOKIE cookie) const noexcept
{
    const auto index = static_cast<std::uint64_t>(cookie) & indexMask;
    const auto turn = static_cast<std::uint64_t>(cookie) >> turnShift;
    return index < m_places.size() && m_places[index].turn == turn ? m_places[index].node : nullptr;
}

} // namespace TMgmt
