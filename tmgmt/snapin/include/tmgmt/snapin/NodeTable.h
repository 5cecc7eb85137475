#pragma once

#include "platform/mmc.h"

#include <cstdint>
#include <vector>

namespace TMgmt
{

class CSnapInItem;

// The nodes that are alive, and the numbers by which the console names them. A number tells a place in the table and
// how many nodes had that place before: the number of a node that is gone names no other one, and neither does one that
// never was.
class NodeTable
{
  public:
    // Gives the node its number, which is positive. Throws std::bad_alloc.
    MMC_COOKIE add(CSnapInItem& node);
    // cookie is the number of a node in the table.
    void remove(MMC_COOKIE cookie) noexcept;
    // Null when no node in the table has this number.
    CSnapInItem* find(MMC_COOKIE cookie) const noexcept;

  private:
    struct Place
    {
        CSnapInItem* node; // null while the place is free
        std::uint32_t turn;
        std::uint32_t nextFree;
    };

    static MMC_COOKIE cookieOf(std::uint32_t index, std::uint32_t turn) noexcept;

    std::vector<Place> m_places;
    // The first free place; that of the table's end when there is none.
    std::uint32_t m_free = 0;
};

} // namespace TMgmt
