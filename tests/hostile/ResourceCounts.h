#pragma once

#include <cstddef>
#include <iosfwd>

namespace Hostile
{

// What this process has of the system. Counting takes some ten milliseconds.
struct ResourceCounts
{
    std::size_t handles = 0;    // files, keys, events, threads, …
    std::size_t gdiObjects = 0; // bitmaps, brushes, fonts, … and, under Wine, what icons and cursors are made of
    std::size_t windows = 0;    // of the calling thread, with their children
    std::size_t menus = 0;

    static ResourceCounts now();
};

std::ostream& operator<<(std::ostream& out, const ResourceCounts& counts);

} // namespace Hostile
